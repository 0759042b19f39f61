#include "platform/system/SingleInstance.h"

#include "platform/ApplicationId.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace cuebright {

namespace {

constexpr std::chrono::milliseconds kReplyTimeout {1000};
constexpr int kPollInterval = 20; // milliseconds

QString fileInCache(const char* name)
{
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + QStringLiteral("/Cuebright");
    QDir().mkpath(folder);
    return folder + QLatin1Char('/') + QString::fromLatin1(name);
}

/// Differs between the users of a machine.
QString serverName()
{
    return QString::fromLatin1(kApplicationId) + QLatin1Char('-')
        + QString::fromLatin1(QDir::homePath().toUtf8().toHex().right(60));
}

bool isAnswered(QLocalSocket& socket) { return socket.waitForReadyRead(kPollInterval) || socket.bytesAvailable() > 0; }

} // namespace

// For systems without a message bus: a lock file and a local server. Run on Linux; not yet on Windows or macOS.
struct SingleInstance::System {
    QLockFile lock {fileInCache("lock")};
    QLocalServer server {};

    System() { lock.setStaleLockTime(0); } // only the end of its process makes a lock stale, not its age

    bool isFirst()
    {
        // Where the lock does not work, the program runs.
        return lock.tryLock(0) || lock.error() != QLockFile::LockFailedError;
    }

    /// Returns nothing where the other instance has ended meanwhile.
    std::optional<int> handOver()
    {
        int argumentCount = 1;
        char name[] = "cuebright";
        char* arguments[] = {name, nullptr};
        const QCoreApplication application(argumentCount, arguments);
        QLocalSocket socket;
        const QDeadlineTimer deadline(kReplyTimeout);
        bool isQueued = false;
        do {
            if (isFirst())
                return std::nullopt;
            if (!isQueued) {
                socket.connectToServer(serverName());
                isQueued = socket.waitForConnected(kPollInterval);
            }
            if (isQueued && isAnswered(socket))
                return EXIT_SUCCESS;
        } while (!deadline.hasExpired());
        std::fputs("Cuebright is running already but does not answer.\n", stderr);
        return isQueued ? EXIT_SUCCESS : EXIT_FAILURE;
    }
};

SingleInstance::SingleInstance()
    : m_system(std::make_unique<System>())
{
}

SingleInstance::~SingleInstance() = default;

std::optional<int> SingleInstance::claimLock() { return m_system->isFirst() ? std::nullopt : m_system->handOver(); }

std::optional<int> SingleInstance::claimName() { return std::nullopt; }

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
