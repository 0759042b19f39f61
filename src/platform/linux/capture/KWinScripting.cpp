#include "platform/linux/capture/KWinScripting.h"

#include "platform/linux/base/FileDescriptor.h"
#include "platform/linux/capture/KWinScript.h"
#include "platform/qt/TextConversion.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVirtualObject>

#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace cuebright {

namespace {

QString kwinService() { return QStringLiteral("org.kde.KWin"); }

QDBusMessage kwinCall(const QString& path, const QString& interface, const QString& method)
{
    auto message = QDBusMessage::createMethodCall(kwinService(), path, interface, method);
    message.setAutoStartService(false);
    return message;
}

QDBusMessage scriptingCall(const QString& method, const QVariantList& arguments)
{
    auto message = kwinCall(QStringLiteral("/Scripting"), QStringLiteral("org.kde.kwin.Scripting"), method);
    message.setArguments(arguments);
    return message;
}

bool isReply(const QDBusMessage& message) { return message.type() == QDBusMessage::ReplyMessage; }

bool writeForOwnerOnly(const std::filesystem::path& file, std::string_view content)
{
    if (file.empty())
        return false;
    ::mkdir(file.parent_path().c_str(), S_IRWXU);
    ::unlink(file.c_str()); // one left by an earlier run may have other permissions
    const FileDescriptor descriptor(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    return descriptor.get() >= 0
        && ::write(descriptor.get(), content.data(), content.size()) == static_cast<ssize_t>(content.size());
}

} // namespace

/// The object on the bus that the script calls.
class KWinScripting::ReportObject final : public QDBusVirtualObject {
public:
    explicit ReportObject(KWinScripting& owner)
        : m_owner(owner)
    {
    }

    QString introspect(const QString&) const override
    {
        return QStringLiteral("<interface name=\"%1\"><method name=\"%2\"><arg type=\"s\" direction=\"in\"/></method>"
                              "</interface>")
            .arg(toQString(kKWinReportInterface), toQString(kKWinReportMethod));
    }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.interface() != toQString(kKWinReportInterface) || message.member() != toQString(kKWinReportMethod)
            || message.signature() != QStringLiteral("s"))
            return false;
        if (message.service() != m_owner.m_owner)
            return connection.send(message.createErrorReply(QDBusError::AccessDenied, QStringLiteral("not KWin")));
        if (message.isReplyRequired())
            connection.send(message.createReply());
        m_owner.reported.notify(toUtf8(message.arguments().constFirst().toString()));
        return true;
    }

private:
    KWinScripting& m_owner;
};

KWinScripting::KWinScripting(Connect connect, const std::filesystem::path& runtimeDirectory)
    : m_connect(std::move(connect))
{
    if (!runtimeDirectory.empty())
        m_scriptFile = runtimeDirectory / "cuebright" / "capture-exclusion.js";
}

KWinScripting::~KWinScripting()
{
    if (m_bus)
        m_bus->unregisterObject(toQString(kKWinReportPath));
    removeScriptFile();
    // Waits for the thread that writes to the bus, so that what was sent before leaves the process.
    m_ownerWatcher.reset();
}

void KWinScripting::start()
{
    m_bus = m_connect();
    if (!m_bus->isConnected())
        return availabilityChanged.notify(Availability::Absent);
    m_reportObject = std::make_unique<ReportObject>(*this);
    m_bus->registerVirtualObject(toQString(kKWinReportPath), m_reportObject.get());
    m_ownerWatcher =
        std::make_unique<QDBusServiceWatcher>(kwinService(), *m_bus, QDBusServiceWatcher::WatchForOwnerChange);
    QObject::connect(m_ownerWatcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, m_ownerWatcher.get(),
        [this](const QString&, const QString&, const QString& newOwner) { setOwner(newOwner); });
    askForOwner();
}

std::string KWinScripting::busName() const { return m_bus ? m_bus->baseService().toStdString() : std::string(); }

void KWinScripting::unload(std::string_view plugin, std::function<void(bool)> done)
{
    const auto message = scriptingCall(QStringLiteral("unloadScript"), {toQString(plugin)});
    if (!done) {
        m_bus->send(message);
        return;
    }
    call(message, [done = std::move(done)](const QDBusMessage& reply) { done(isReply(reply)); });
}

void KWinScripting::load(std::string_view script, std::string_view plugin, std::function<void(std::optional<int>)> done)
{
    if (!writeForOwnerOnly(m_scriptFile, script)) {
        QMetaObject::invokeMethod(
            &m_calls, [done = std::move(done)] { done(std::nullopt); }, Qt::QueuedConnection);
        return;
    }
    const auto file = toQString(m_scriptFile.native());
    call(scriptingCall(QStringLiteral("loadScript"), {file, toQString(plugin)}),
        [done = std::move(done)](const QDBusMessage& reply) {
            const bool hasNumber = isReply(reply) && reply.signature() == QStringLiteral("i");
            done(hasNumber ? std::optional(reply.arguments().constFirst().toInt()) : std::nullopt);
        });
}

void KWinScripting::run(int id, std::function<void(bool)> done)
{
    const auto path = QStringLiteral("/Scripting/Script%1").arg(id);
    call(kwinCall(path, QStringLiteral("org.kde.kwin.Script"), QStringLiteral("run")),
        [this, done = std::move(done)](const QDBusMessage& reply) {
            removeScriptFile();
            done(isReply(reply));
        });
}

void KWinScripting::call(const QDBusMessage& message, Replied replied)
{
    auto* watcher = new QDBusPendingCallWatcher(m_bus->asyncCall(message), &m_calls);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, replied = std::move(replied)] {
        watcher->deleteLater();
        replied(watcher->reply());
    });
}

void KWinScripting::askForOwner()
{
    const auto bus = QStringLiteral("org.freedesktop.DBus");
    auto message = QDBusMessage::createMethodCall(
        bus, QStringLiteral("/org/freedesktop/DBus"), bus, QStringLiteral("GetNameOwner"));
    message.setArguments({kwinService()});
    call(message, [this](const QDBusMessage& reply) {
        if (isReply(reply))
            setOwner(reply.arguments().constFirst().toString());
        else if (m_owner.isEmpty())
            availabilityChanged.notify(Availability::Absent);
    });
}

void KWinScripting::setOwner(const QString& owner)
{
    if (owner == m_owner)
        return;
    m_owner = owner;
    availabilityChanged.notify(owner.isEmpty() ? Availability::Absent : Availability::Present);
}

void KWinScripting::removeScriptFile()
{
    if (!m_scriptFile.empty())
        ::unlink(m_scriptFile.c_str());
}

} // namespace cuebright
