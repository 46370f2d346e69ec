// q9shots run as a program: one page alone, also a page that no tree shows.
#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <utility>

#include "support/TestPaths.h"

namespace {

// Width and height from a PNG file's header; 0 by 0 when it is not one.
std::pair<int, int> PngSize(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {0, 0};
    const QByteArray head = file.read(24);
    if (head.size() < 24 || !head.startsWith("\x89PNG")) return {0, 0};
    const auto word = [&head](int at) {
        int value = 0;
        for (int i = 0; i < 4; ++i) value = value * 256 + static_cast<unsigned char>(head[at + i]);
        return value;
    };
    return {word(16), word(20)};
}

class ShotsToolTest : public testing::Test {
protected:
    void SetUp() override {
        if (!HasTestPath("shots")) GTEST_SKIP() << "q9shots is not built in this tree";
        ASSERT_TRUE(m_out.isValid());
    }

    int Run(const QStringList& arguments) const {
        QProcess process;
        process.start(QString::fromStdString(TestPath("shots")), arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        return process.exitCode();
    }

    QTemporaryDir m_out;
};

TEST_F(ShotsToolTest, APageOutsideEveryTreeIsRenderedAlone) {
    ASSERT_EQ(Run({"--edition", "normal", "--page", "20", "--out", m_out.path()}), 0);
    // The wizard's function step, without a frame around it.
    EXPECT_EQ(PngSize(m_out.filePath("normal-page20.png")), std::make_pair(484, 384));
}

TEST_F(ShotsToolTest, APageThatDoesNotExistIsABadCommandLine) {
    EXPECT_EQ(Run({"--page", "41", "--out", m_out.path()}), 2);
    EXPECT_EQ(Run({"--page", "x", "--out", m_out.path()}), 2);
    EXPECT_EQ(Run({"--page"}), 2);
}

}  // namespace
