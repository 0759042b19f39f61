#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace cuebright::test {

/// A desktop's portal: Settings, GlobalShortcuts and the Registry, as documented by XDG Desktop Portal. A response
/// is sent before the reply to its request, which the protocol allows.
///
/// Invalid calls (a second binding, an unknown session, a malformed token) get an error.
class FakePortal final : public QDBusVirtualObject {
public:
    /// On the bus until the connection ends or `leave` is called.
    explicit FakePortal(QDBusConnection bus);
    ~FakePortal() override { leave(); }

    void leave();

    /// Stores the value and emits SettingChanged.
    void changeSetting(const QString& group, const QString& key, const QVariant& value);
    /// Emits Activated for a shortcut; false if no session has bound it.
    bool activate(const QString& id);
    void sendActivated(const QString& session, const QString& id);
    /// Emits Closed for a session.
    void closeSession(const QString& session);

    QMap<QString, QVariantMap> settings; ///< by group and key
    bool isSilent = false; ///< does not reply
    bool hasShortcuts = true;
    bool hasRegistry = true;
    uint responseToCreate = 0;
    uint responseToBind = 0;
    QString triggerDescription = QStringLiteral("Ctrl+Shift+S"); ///< of all shortcuts

    struct DesktopSession {
        QString path;
        QString client; ///< unique name
        QStringList shortcuts; ///< bound ones
        bool wasBound = false;
    };
    QList<DesktopSession> sessions; ///< open ones
    QStringList calls; ///< in order: the method and its main arguments

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;
    QString introspect(const QString&) const override { return {}; }

private:
    QVariantList answerTo(const QDBusMessage& message);
    QVariantList createSession(const QDBusMessage& message);
    QVariantList bind(const QDBusMessage& message);
    QVariantList respond(
        const QDBusMessage& request, const QVariantMap& options, uint response, const QVariantMap& results);

    QDBusConnection m_bus;
};

} // namespace cuebright::test
