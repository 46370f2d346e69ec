#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "beacon/WindowBeacon.h"
#include "support/ChildProcess.h"
#include "support/HelperWindow.h"
#include "support/ProblemCapture.h"
#include "support/ScopedVariable.h"
#include "support/TestPaths.h"

namespace {

const std::string kHelper = TestPath("helpers") + "/q9_window_helper";

bool WaitWithEvents(const std::function<bool()>& condition) {
    return WaitFor([&condition] {
        QCoreApplication::processEvents();
        return condition();
    });
}

// Whether action ran without waiting: BringWindowForward waits for an answer
// in a local event loop only, and a zero-delay timer started before action
// would fire in that loop. Still pending afterwards, it shows that no loop
// ran, however slowly the machine went.
bool AnswersWithoutWaiting(const std::function<void()>& action) {
    QTimer probe;
    probe.setSingleShot(true);
    probe.start(0);
    action();
    return probe.isActive();
}

}  // namespace

TEST(WindowBeacon, BringsAWindowOfThisProcessForward) {
    QWidget window;
    window.show();
    WindowBeacon beacon(&window);
    QSignalSpy forward(&beacon, &WindowBeacon::broughtForward);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(WaitWithEvents([&other] { return other.isActiveWindow(); }));

    ASSERT_NE(beacon.Token(), 0u);
    EXPECT_TRUE(BringWindowForward(beacon.Token()));
    EXPECT_EQ(forward.count(), 1);
    EXPECT_TRUE(WaitWithEvents([&window] { return window.isActiveWindow(); }));
}

TEST(WindowBeacon, ShowsAMinimisedWindowNormally) {
    QWidget window;
    window.showMinimized();
    WindowBeacon beacon(&window);
    ASSERT_TRUE(window.isMinimized());

    EXPECT_TRUE(BringWindowForward(beacon.Token()));
    EXPECT_FALSE(window.isMinimized());
    EXPECT_TRUE(window.isVisible());
}

TEST(WindowBeacon, BringsTheWindowOfAnotherProcessForward) {
    HelperWindow helper(kHelper);
    ASSERT_TRUE(helper.Process().Started());
    const uint32_t token = helper.WaitForToken();
    ASSERT_NE(token, 0u);
    EXPECT_EQ(helper.Lines().size(), 1u);

    EXPECT_TRUE(BringWindowForward(token));
    EXPECT_TRUE(WaitFor([&helper] { return helper.Lines().size() == 2; }));
    EXPECT_EQ(helper.Lines().back(), "forward");
}

TEST(WindowBeacon, AnswersAProcessWithoutApplicationObject) {
    QWidget window;
    window.show();
    WindowBeacon beacon(&window);
    QSignalSpy forward(&beacon, &WindowBeacon::broughtForward);

    ChildProcess asker(kHelper, {"bring", std::to_string(beacon.Token())});
    ASSERT_TRUE(asker.Started());
    ASSERT_TRUE(WaitWithEvents([&asker] { return asker.HasExited(); }));
    EXPECT_EQ(asker.Wait(), 0);
    EXPECT_EQ(forward.count(), 1);
}

TEST(WindowBeacon, TokenZeroIsNoWindow) { EXPECT_FALSE(BringWindowForward(0)); }

TEST(WindowBeacon, SocketLeftByAKilledProcessAnswersFalseWithoutWaiting) {
    HelperWindow helper(kHelper);
    const uint32_t token = helper.WaitForToken();
    ASSERT_NE(token, 0u);
    helper.Process().Kill();
    ASSERT_TRUE(QFile::exists(WindowBeacon::SocketPath(token)));

    bool answer = true;
    EXPECT_TRUE(AnswersWithoutWaiting([&] { answer = BringWindowForward(token); }));
    EXPECT_FALSE(answer);
}

TEST(WindowBeacon, DestroyedBeaconAnswersFalseWithoutWaiting) {
    QWidget window;
    uint32_t token = 0;
    {
        WindowBeacon beacon(&window);
        token = beacon.Token();
        ASSERT_NE(token, 0u);
    }
    EXPECT_FALSE(QFile::exists(WindowBeacon::SocketPath(token)));

    bool answer = true;
    EXPECT_TRUE(AnswersWithoutWaiting([&] { answer = BringWindowForward(token); }));
    EXPECT_FALSE(answer);
}

TEST(WindowBeacon, TwoBeaconsHaveDifferentTokensAndBothAnswer) {
    QWidget first;
    QWidget second;
    WindowBeacon firstBeacon(&first);
    WindowBeacon secondBeacon(&second);
    QSignalSpy firstForward(&firstBeacon, &WindowBeacon::broughtForward);
    QSignalSpy secondForward(&secondBeacon, &WindowBeacon::broughtForward);

    ASSERT_NE(firstBeacon.Token(), 0u);
    ASSERT_NE(secondBeacon.Token(), 0u);
    EXPECT_NE(firstBeacon.Token(), secondBeacon.Token());
    EXPECT_TRUE(BringWindowForward(secondBeacon.Token()));
    EXPECT_EQ(firstForward.count(), 0);
    EXPECT_EQ(secondForward.count(), 1);
}

TEST(WindowBeacon, NewBeaconReplacesAStaleSocketOfItsToken) {
    QWidget window;
    uint32_t token = 0;
    {
        WindowBeacon beacon(&window);
        token = beacon.Token();
    }
    QFile stale(WindowBeacon::SocketPath(token));
    ASSERT_TRUE(stale.open(QIODevice::WriteOnly));
    stale.close();

    WindowBeacon beacon(&window);
    ASSERT_EQ(beacon.Token(), token);
    EXPECT_TRUE(BringWindowForward(token));
}

// Each shared library that links the beacon counts its serials alone; a
// beacon of another library of this process, listening on the token this
// one would take, keeps it.
TEST(WindowBeacon, ALiveSocketOfItsTokenIsLeftToItsListener) {
    QWidget window;
    uint32_t token = 0;
    {
        WindowBeacon beacon(&window);
        token = beacon.Token();
    }
    QLocalServer otherLibrary;
    ASSERT_TRUE(otherLibrary.listen(WindowBeacon::SocketPath(token)));

    WindowBeacon beacon(&window);
    EXPECT_NE(beacon.Token(), 0u);
    EXPECT_NE(beacon.Token(), token);
    QLocalSocket caller;
    caller.connectToServer(WindowBeacon::SocketPath(token));
    EXPECT_TRUE(caller.waitForConnected(10000));
    EXPECT_TRUE(otherLibrary.waitForNewConnection(10000));
}

TEST(WindowBeacon, OnlyTheUserCanConnect) {
    QWidget window;
    WindowBeacon beacon(&window);
    struct stat status {};
    ASSERT_EQ(stat(WindowBeacon::SocketPath(beacon.Token()).toLocal8Bit().constData(), &status), 0);
    EXPECT_TRUE(S_ISSOCK(status.st_mode));
    EXPECT_EQ(status.st_mode & 077u, 0u);
}

TEST(WindowBeacon, UnknownRequestGetsNoActionAndNoAnswer) {
    QWidget window;
    window.show();
    WindowBeacon beacon(&window);
    QSignalSpy forward(&beacon, &WindowBeacon::broughtForward);
    QLocalSocket socket;
    QByteArray answer;
    QObject::connect(&socket, &QLocalSocket::readyRead, [&] { answer += socket.readAll(); });
    QSignalSpy disconnected(&socket, &QLocalSocket::disconnected);

    socket.connectToServer(WindowBeacon::SocketPath(beacon.Token()));
    ASSERT_TRUE(socket.waitForConnected(10000));
    socket.write("show yourself\n");
    ASSERT_TRUE(disconnected.wait(10000));
    EXPECT_TRUE(answer.isEmpty());
    EXPECT_EQ(forward.count(), 0);
}

TEST(WindowBeacon, BeaconOfADestroyedWindowDoesNotAcknowledge) {
    auto* window = new QWidget;
    WindowBeacon beacon(window);
    QSignalSpy forward(&beacon, &WindowBeacon::broughtForward);
    delete window;

    EXPECT_FALSE(BringWindowForward(beacon.Token()));
    EXPECT_EQ(forward.count(), 0);
}

TEST(WindowBeacon, BeaconThatCannotListenHasTokenZeroReportedOnce) {
    // A socket path longer than a local socket address can hold.
    QTemporaryDir root;
    const QString directory = root.filePath(QString(120, QLatin1Char('d')));
    ASSERT_TRUE(QDir().mkpath(directory));
    ScopedVariable temporary("TMPDIR", directory.toLocal8Bit().constData());
    ProblemCapture problems;
    QWidget window;
    WindowBeacon beacon(&window);

    EXPECT_EQ(beacon.Token(), 0u);
    EXPECT_EQ(beacon.Token(), 0u);
    ASSERT_EQ(problems.Lines().size(), 1u);
    EXPECT_NE(problems.Lines().front().find("cannot listen for window requests on " +
                                            directory.toStdString()),
              std::string::npos);
}

TEST(WindowBeacon, ASocketOfAnotherUserIsNotAsked) {
    if (::geteuid() != 0) GTEST_SKIP() << "handing a socket to another user needs root";
    QWidget window;
    WindowBeacon beacon(&window);
    QSignalSpy forward(&beacon, &WindowBeacon::broughtForward);
    const QByteArray path = QFile::encodeName(WindowBeacon::SocketPath(beacon.Token()));
    ASSERT_EQ(::chown(path.constData(), 65534, 65534), 0);
    EXPECT_FALSE(BringWindowForward(beacon.Token()));
    EXPECT_EQ(forward.count(), 0);
}

TEST(WindowBeacon, AFolderOfAnotherUserIsNotUsed) {
    if (::geteuid() != 0) GTEST_SKIP() << "handing a folder to another user needs root";
    QTemporaryDir temporary;
    ScopedVariable variable("TMPDIR", temporary.path().toLocal8Bit().constData());
    const QByteArray folder = QFile::encodeName(WindowBeacon::SocketDirectory());
    ASSERT_EQ(::mkdir(folder.constData(), 0700), 0);
    ASSERT_EQ(::chown(folder.constData(), 65534, 65534), 0);
    ProblemCapture problems;
    QWidget window;
    WindowBeacon beacon(&window);
    EXPECT_EQ(beacon.Token(), 0u);
    ASSERT_EQ(problems.Lines().size(), 1u);
    EXPECT_NE(problems.Lines().front().find("is not the user's own"), std::string::npos);
}

TEST(WindowBeacon, TheSocketFolderIsTheUsersAlone) {
    QWidget window;
    WindowBeacon beacon(&window);
    struct stat status {};
    ASSERT_EQ(::stat(QFile::encodeName(WindowBeacon::SocketDirectory()).constData(), &status), 0);
    EXPECT_EQ(status.st_uid, ::geteuid());
    EXPECT_EQ(status.st_mode & 077u, 0u);
}
