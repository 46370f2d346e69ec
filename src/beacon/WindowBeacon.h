#pragma once

// Lets another process bring a window of this process to the front.
//
// Only one configuration window may be open per user; a second request while
// one is open brings the open one forward instead. A process cannot raise
// another process's window by an id, so the window's own process does it: a
// WindowBeacon listens on a local socket named after its token, and
// BringWindowForward(token) asks it, from any process of the same user, to
// bring its window forward. The token is what the shared configuration-window
// word holds.
//
// The token is the process id with a serial of the beacons alive in this
// process above it: never 0, and unique among the live beacons of the user,
// also when several libraries of one process link the beacon (a serial whose
// socket a live beacon answers is skipped).
// The socket lies in a folder of the user's own in the temporary directory
// (TMPDIR, else /tmp), which only the user may enter, and is named after the
// token.

#include <QObject>
#include <QPointer>
#include <QString>
#include <cstdint>

class QLocalServer;
class QLocalSocket;
class QWidget;

class WindowBeacon : public QObject {
    Q_OBJECT

public:
    // Starts listening for window. Made on window's thread (the GUI thread),
    // whose event loop answers the requests. The beacon does not own window.
    explicit WindowBeacon(QWidget* window);
    // Stops listening and removes the socket.
    ~WindowBeacon() override;

    // 0 when the beacon could not listen (reported once when made).
    uint32_t Token() const;

    // The socket of the beacon with token, in the user's own folder
    // <temporary directory>/Q9CfgUL-<user id>.
    static QString SocketPath(uint32_t token);
    static QString SocketDirectory();

signals:
    // The window was brought forward at another caller's request.
    void broughtForward();

private:
    bool Listen(const QString& path);
    void AcceptConnections();
    void Answer(QLocalSocket* socket);
    void BringForward();

    QPointer<QWidget> m_window;
    QLocalServer* m_server;
    uint32_t m_serial = 0;
    uint32_t m_token = 0;
};

// Asks the beacon of token to bring its window forward and waits up to about
// a second for its answer. True only when the beacon acknowledged; false for
// token 0, for a token nobody listens on (a beacon of an ended process) and
// on any error.
//
// With a Qt application object (QCoreApplication or QApplication) the wait
// runs a local event loop that handles no user input, so a beacon on the
// calling thread answers too. Without one it waits on the socket alone; then
// no beacon can live in this process, as a window needs a QApplication.
bool BringWindowForward(uint32_t token);
