// Entry point of the widget tests: real widgets on Qt's offscreen platform,
// so that no display is needed. Each test process has a configuration-window
// word of its own, so that test programs running side by side do not see
// each other's dialogs as the user's open window.
#include <gtest/gtest.h>

#include <unistd.h>

#include <QApplication>
#include <cstdlib>
#include <string>

#include "platform/SharedWord.h"

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const std::string word = "/Q9CfgUL_test_" + std::to_string(getpid());
    setenv("Q9_CONFIG_WINDOW_WORD", word.c_str(), 1);
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    const int result = RUN_ALL_TESTS();
    platform::SharedWord::Remove(word);
    return result;
}
