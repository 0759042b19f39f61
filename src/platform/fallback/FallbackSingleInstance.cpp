#include "platform/system/SingleInstance.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>

#include <cstdio>
#include <cstdlib>

namespace cuebright {

namespace {

constexpr int kReplyTimeout = 1000; // milliseconds
constexpr int kInterval = 20;

QString fileInCache(const char* name)
{
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + QStringLiteral("/Cuebright");
    QDir().mkpath(folder);
    return folder + QLatin1Char('/') + QString::fromLatin1(name);
}

/// Of this user only: a plain name would be the same for all users of the machine.
QString serverName()
{
    return QStringLiteral("app.cuebright.Cuebright-")
        + QString::fromLatin1(QDir::homePath().toUtf8().toHex().right(60));
}

bool isAnswered(QLocalSocket& socket) { return socket.waitForReadyRead(kInterval) || socket.bytesAvailable() > 0; }

} // namespace

// For systems without a message bus, by a lock file and a local server. Tried on Linux; not run on Windows or macOS
// yet.
struct SingleInstance::System {
    QLockFile lock {fileInCache("lock")};
    std::optional<int> exitStatus {};
    QLocalServer server {};

    System() { lock.setStaleLockTime(0); } // a lock is stale when its process has gone, however old it is

    bool isFirst()
    {
        // Where it cannot be known, the program runs.
        return lock.tryLock(0) || lock.error() != QLockFile::LockFailedError;
    }

    /// Nothing where the other instance has ended meanwhile.
    std::optional<int> handOver()
    {
        int argumentCount = 1;
        char name[] = "cuebright";
        char* arguments[] = {name, nullptr};
        const QCoreApplication forTheSocket(argumentCount, arguments);
        QLocalSocket socket;
        QElapsedTimer timer;
        timer.start();
        bool isQueued = false;
        do {
            if (isFirst())
                return std::nullopt;
            if (!isQueued) {
                socket.connectToServer(serverName());
                isQueued = socket.waitForConnected(kInterval);
            }
            if (isQueued && isAnswered(socket))
                return EXIT_SUCCESS;
        } while (timer.elapsed() < kReplyTimeout);
        std::fputs("Cuebright is running already but does not answer.\n", stderr);
        return isQueued ? EXIT_SUCCESS : EXIT_FAILURE;
    }
};

SingleInstance::SingleInstance()
    : m_system(std::make_unique<System>())
{
    if (!m_system->isFirst())
        m_system->exitStatus = m_system->handOver();
}

SingleInstance::~SingleInstance() = default;

std::optional<int> SingleInstance::exitStatus() const { return m_system->exitStatus; }

void SingleInstance::deliver(std::function<void(const RemoteRequest&)> perform)
{
    auto& server = m_system->server;
    server.setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(serverName());
    QObject::connect(&server, &QLocalServer::newConnection, &server, [&server, perform = std::move(perform)] {
        while (const auto socket = server.nextPendingConnection()) {
            QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            perform({});
            socket->write("\n");
            socket->flush();
        }
    });
    server.listen(serverName());
}

} // namespace cuebright
