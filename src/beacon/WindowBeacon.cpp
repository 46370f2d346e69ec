#include "beacon/WindowBeacon.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTimer>
#include <QWidget>
#include <bitset>
#include <cerrno>
#include <cstring>
#include <mutex>
#include <optional>

#include "platform/ProblemReport.h"

namespace {

const QByteArray kRequest = "Q9CfgUL bring-forward\n";
const QByteArray kAcknowledgement = "Q9CfgUL brought-forward\n";

constexpr int kAnswerWaitMs = 1000;

// Linux process ids stay below 2^22 (the kernel's limit for pid_max), which
// leaves the upper 10 bits of a token for the serial.
constexpr uint32_t kProcessIdBits = 22;
constexpr uint32_t kSerialCount = 1u << (32 - kProcessIdBits);

std::mutex g_serialMutex;
std::bitset<kSerialCount> g_serialsInUse;

uint32_t TokenOf(uint32_t serial) {
    return (serial << kProcessIdBits) | static_cast<uint32_t>(getpid());
}

// Whether a live beacon listens on path. Each shared library that links this
// code has serials of its own, so a beacon of another library of this process
// may hold a token this copy thinks free; a socket left by an ended process
// that had this process's id is a file too, but nobody answers it.
bool SomebodyListensOn(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address{};
    if (static_cast<size_t>(name.size()) >= sizeof(address.sun_path)) return false;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, name.constData(), static_cast<size_t>(name.size()));
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0) return false;
    const bool listening =
        ::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
    ::close(fd);
    return listening;
}

// The lowest serial that no live beacon of this process has.
std::optional<uint32_t> TakeSerial() {
    std::lock_guard<std::mutex> lock(g_serialMutex);
    for (uint32_t serial = 0; serial < kSerialCount; ++serial) {
        if (g_serialsInUse[serial]) continue;
        if (SomebodyListensOn(WindowBeacon::SocketPath(TokenOf(serial)))) continue;
        g_serialsInUse[serial] = true;
        return serial;
    }
    return std::nullopt;
}

void ReleaseSerial(uint32_t serial) {
    std::lock_guard<std::mutex> lock(g_serialMutex);
    g_serialsInUse[serial] = false;
}

bool IsAcknowledgement(const QByteArray& answer) { return answer == kAcknowledgement; }

// Waits in a local event loop, so that a beacon on this thread can answer.
bool AskInEventLoop(const QString& path) {
    QLocalSocket socket;
    QEventLoop loop;
    QTimer limit;
    limit.setSingleShot(true);
    QByteArray answer;
    QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    QObject::connect(&socket, &QLocalSocket::connected, &loop,
                     [&socket] { socket.write(kRequest); });
    QObject::connect(&socket, &QLocalSocket::readyRead, &loop, [&] {
        answer += socket.readAll();
        if (answer.contains('\n')) loop.quit();
    });
    QObject::connect(&socket, &QLocalSocket::disconnected, &loop, &QEventLoop::quit);
    QObject::connect(&socket, &QLocalSocket::errorOccurred, &loop, &QEventLoop::quit);
    socket.connectToServer(path);
    // A missing or refused socket fails at once, before the loop could see it.
    if (socket.state() == QLocalSocket::UnconnectedState) return false;
    limit.start(kAnswerWaitMs);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return IsAcknowledgement(answer);
}

bool AskBlocking(const QString& path) {
    QLocalSocket socket;
    const QDeadlineTimer deadline(kAnswerWaitMs);
    socket.connectToServer(path);
    if (!socket.waitForConnected(static_cast<int>(deadline.remainingTime()))) return false;
    socket.write(kRequest);
    if (!socket.waitForBytesWritten(static_cast<int>(deadline.remainingTime()))) return false;
    QByteArray answer;
    while (!answer.contains('\n') &&
           socket.waitForReadyRead(static_cast<int>(deadline.remainingTime()))) {
        answer += socket.readAll();
    }
    return IsAcknowledgement(answer);
}

}  // namespace

WindowBeacon::WindowBeacon(QWidget* window) : m_window(window), m_server(new QLocalServer(this)) {
    connect(m_server, &QLocalServer::newConnection, this, &WindowBeacon::AcceptConnections);
    const std::optional<uint32_t> serial = TakeSerial();
    if (!serial) {
        platform::ReportProblem(
            "cannot listen for window requests: too many windows in this process");
        return;
    }
    const uint32_t token = TokenOf(*serial);
    if (!Listen(SocketPath(token))) {
        ReleaseSerial(*serial);
        return;
    }
    m_serial = *serial;
    m_token = token;
}

WindowBeacon::~WindowBeacon() {
    m_server->close();
    if (m_token != 0) ReleaseSerial(m_serial);
}

uint32_t WindowBeacon::Token() const { return m_token; }

QString WindowBeacon::SocketDirectory() {
    return QDir::tempPath() + QStringLiteral("/Q9CfgUL-%1").arg(geteuid());
}

QString WindowBeacon::SocketPath(uint32_t token) {
    return SocketDirectory() + QStringLiteral("/window-%1").arg(token);
}

namespace {

// The user's own folder of beacon sockets, made on first use; only its owner
// may enter it. A folder of that name that belongs to someone else, or that
// others may enter, is not used.
bool MakePrivateFolder(const QString& folder) {
    const QByteArray path = QFile::encodeName(folder);
    if (::mkdir(path.constData(), 0700) != 0 && errno != EEXIST) return false;
    struct stat info {};
    return ::lstat(path.constData(), &info) == 0 && S_ISDIR(info.st_mode) &&
           info.st_uid == ::geteuid() && (info.st_mode & 077) == 0;
}

}  // namespace

bool WindowBeacon::Listen(const QString& path) {
    if (!MakePrivateFolder(SocketDirectory())) {
        platform::ReportProblem("cannot listen for window requests: the folder " +
                                SocketDirectory().toStdString() + " is not the user's own");
        return false;
    }
    // A socket of this name left by an ended process that had the same id;
    // listening is documented to fail while one exists.
    QLocalServer::removeServer(path);
    if (m_server->listen(path)) {
        ::chmod(QFile::encodeName(path).constData(), 0600);
        return true;
    }
    platform::ReportProblem("cannot listen for window requests on " + path.toStdString() + ": " +
                            m_server->errorString().toStdString());
    return false;
}

void WindowBeacon::AcceptConnections() {
    while (QLocalSocket* socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { Answer(socket); });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        Answer(socket);
    }
}

// Reads one line; the request brings the window forward and is acknowledged,
// anything else only closes the connection.
void WindowBeacon::Answer(QLocalSocket* socket) {
    if (!socket->canReadLine()) {
        if (socket->bytesAvailable() > kRequest.size()) socket->abort();
        return;
    }
    if (socket->readLine() == kRequest && m_window) {
        BringForward();
        socket->write(kAcknowledgement);
    }
    socket->disconnectFromServer();
}

void WindowBeacon::BringForward() {
    if (m_window->isMinimized()) m_window->showNormal();
    m_window->raise();
    m_window->activateWindow();
    emit broughtForward();
}

namespace {

// Only a socket of this user is asked: in a shared temporary directory
// another user could otherwise answer for a window of a process that ended.
bool IsOwnSocket(const QString& path) {
    struct stat info {};
    return ::lstat(QFile::encodeName(path).constData(), &info) == 0 && S_ISSOCK(info.st_mode) &&
           info.st_uid == ::geteuid();
}

}  // namespace

bool BringWindowForward(uint32_t token) {
    if (token == 0) return false;
    const QString path = WindowBeacon::SocketPath(token);
    if (!IsOwnSocket(path)) return false;
    if (QCoreApplication::instance()) return AskInEventLoop(path);
    return AskBlocking(path);
}
