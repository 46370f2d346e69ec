#include "DriveTestSupport.h"

#include <stdlib.h>

#include <filesystem>

#include "platform/MountTable.h"
#include "platform/Registry.h"
#include "session/ProcessState.h"
#include "session/RegistryHelpers.h"

DriveTest::DriveTest() : m_savedWinNT(g_bWinNT) {
    g_bWinNT = 1;
    for (const char* folder : {"data/A", "data/b", "data/.hidden", "data/empty", "share/docs"}) {
        std::filesystem::create_directories(Folder(folder));
    }
    Install().Write("fs/data/file.txt", "not a folder");
    UseMountTable(StandardMounts());
}

DriveTest::~DriveTest() {
    unsetenv(platform::kMountTableVariable);
    g_bWinNT = m_savedWinNT;
}

std::string DriveTest::Folder(const std::string& relative) const {
    const std::string base = Install().PathOf("fs");
    return relative.empty() ? base : base + "/" + relative;
}

void DriveTest::UseMountTable(const std::string& text) const {
    Install().Write("mounts", text);
    setenv(platform::kMountTableVariable, Install().PathOf("mounts").c_str(), 1);
}

std::string DriveTest::StandardMounts() const {
    return "/dev/q9root / ext4 rw 0 0\n"
           "/dev/q9data " +
           Folder("data") +
           " ext4 rw 0 0\n"
           "//server/share " +
           Folder("share") + " cifs rw 0 0\n";
}

void DriveTest::Remember(const std::string& mountPoint, const char* remotePath) {
    const std::string key = "NetWork\\Persistent\\" + mountPoint;
    ASSERT_EQ(RegWriteString(platform::CurrentUser(), key.c_str(), "RemotePath", remotePath), 0);
}

QTreeWidgetItem* ChildNamed(const QTreeWidgetItem* node, const QString& text) {
    for (int i = 0; node && i < node->childCount(); ++i) {
        if (node->child(i)->text(0) == text) return node->child(i);
    }
    return nullptr;
}

std::vector<std::string> ChildTexts(const QTreeWidgetItem* node) {
    std::vector<std::string> texts;
    for (int i = 0; node && i < node->childCount(); ++i) {
        texts.push_back(node->child(i)->text(0).toStdString());
    }
    return texts;
}
