#include <gtest/gtest.h>

#include "text/TextFormat.h"

namespace {
std::string Bounded(std::size_t capacity, const char* format, ...)
    __attribute__((format(printf, 2, 3)));
std::string Bounded(std::size_t capacity, const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::string text = FormatBoundedV(capacity, format, arguments);
    va_end(arguments);
    return text;
}
}  // namespace

TEST(TextFormat, FormatsLikePrintf) {
    EXPECT_EQ(FormatText("%s=%d", "x", 5), "x=5");
    EXPECT_EQ(FormatText("%s", std::string(5000, 'a').c_str()).size(), 5000u);
}

TEST(TextFormat, BoundedFormattingCutsAtCapacityLessOne) {
    EXPECT_EQ(Bounded(1024, "%s", std::string(2000, 'b').c_str()).size(), 1023u);
    EXPECT_EQ(Bounded(4, "%d", 123456), "123");
    EXPECT_EQ(Bounded(0, "%d", 1), "");
}

TEST(TextFormat, ResourceFormatsTakeRuntimeFormats) {
    const std::string format = "between %s ~ %s.";
    EXPECT_EQ(FormatResource(format.c_str(), "1", "9"), "between 1 ~ 9.");
}
