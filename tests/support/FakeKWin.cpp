#include "support/FakeKWin.h"

#include "support/TemporaryFolder.h"

#include <QDBusError>
#include <QDBusPendingCall>
#include <QRegularExpression>

#include <filesystem>

namespace cuebright::test {

FakeKWin::FakeKWin(QDBusConnection bus)
    : connection(std::move(bus))
{
    connection.registerVirtualObject(QStringLiteral("/Scripting"), this, QDBusConnection::SubPath);
    appear();
}

FakeKWin::~FakeKWin() { connection.unregisterObject(QStringLiteral("/Scripting")); }

void FakeKWin::appear() { connection.registerService(QStringLiteral("org.kde.KWin")); }

void FakeKWin::vanish() { connection.unregisterService(QStringLiteral("org.kde.KWin")); }

/// The script has the call's destination as constants.
QDBusMessage FakeKWin::reportOf(const QString& word) const
{
    const auto constant = [this](const QString& name) {
        const QRegularExpression pattern(QStringLiteral("const %1 = \"([^\"]*)\"").arg(name));
        return pattern.match(QString::fromStdString(script)).captured(1);
    };
    auto message = QDBusMessage::createMethodCall(constant(QStringLiteral("busName")), constant(QStringLiteral("path")),
        constant(QStringLiteral("iface")), constant(QStringLiteral("method")));
    message.setArguments({word});
    return message;
}

bool FakeKWin::handleMessage(const QDBusMessage& message, const QDBusConnection&)
{
    const auto member = message.member();
    calls << message.path() + u' ' + message.interface() + u'.' + member + u'(' + message.signature() + u')';
    for (const auto& argument : message.arguments())
        calls.back() += u' ' + argument.toString();
    if (called)
        called(calls.back());
    if (member == refused)
        return connection.send(message.createErrorReply(QDBusError::Failed, refused));
    if (member == QStringLiteral("unloadScript"))
        return connection.send(message.createReply(false));
    if (member == QStringLiteral("loadScript")) {
        const std::filesystem::path file = message.arguments().at(0).toString().toStdString();
        script = readFile(file);
        modes = {TemporaryFolder::modeOf(file), TemporaryFolder::modeOf(file.parent_path())};
        return connection.send(message.createReply(scriptNumber));
    }
    if (!report.isEmpty())
        connection.asyncCall(reportOf(report));
    return connection.send(message.createReply());
}

} // namespace cuebright::test
