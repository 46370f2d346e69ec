// The system binds the library at run time and calls its exports by name.

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "ZoneTestSupport.h"
#include "support/TestPaths.h"

TEST(ZoneLibraryLoadTest, ExportsWorkWhenLoadedByName) {
    TemporaryInstallation install;
    void* library = dlopen((TestPath("library") + "/libOrvDMZ.so").c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    using Create = void* (*)();
    using Add = int32_t (*)(void*, const char*, const char*, const void*);
    using Enum = int32_t (*)(void*, const char*, const char*, void*, int32_t);
    using Delete = int32_t (*)(void*, const char*, const char*, int32_t);
    using Destroy = void (*)(void*);
    const auto create = reinterpret_cast<Create>(dlsym(library, "OrvDMZ_Create"));
    const auto add = reinterpret_cast<Add>(dlsym(library, "OrvDMZ_AddDMZA"));
    const auto enumerate = reinterpret_cast<Enum>(dlsym(library, "OrvDMZ_EnumDMZA"));
    const auto remove = reinterpret_cast<Delete>(dlsym(library, "OrvDMZ_DeleteDMZA"));
    const auto destroy = reinterpret_cast<Destroy>(dlsym(library, "OrvDMZ_Destroy"));
    ASSERT_TRUE(create && add && enumerate && remove && destroy);

    void* zone = create();
    ASSERT_NE(zone, nullptr);
    const auto bytes = MakeBuffer({Record(1, 0x102, "/home/user/private")});
    EXPECT_EQ(add(zone, "Q9Pro2004", "Q9Pro2004", bytes.data()), 1);
    const int32_t size = enumerate(zone, "Q9Pro2004", "Q9Pro2004", nullptr, 0);
    ASSERT_EQ(size, 18 + 541 + 4);
    std::vector<unsigned char> out(static_cast<std::size_t>(size));
    EXPECT_EQ(enumerate(zone, "Q9Pro2004", "Q9Pro2004", out.data(), size), size);
    EXPECT_EQ(ReadBuffer(out.data())[0], Record(1, 0x102, "/home/user/private", "Q9Pro2004"));
    EXPECT_EQ(remove(zone, "Q9Pro2004", "Q9Pro2004", 0), 1);
    EXPECT_EQ(enumerate(zone, "Q9Pro2004", "Q9Pro2004", nullptr, 0), 0);
    destroy(zone);
    dlclose(library);
}
