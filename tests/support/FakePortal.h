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
/// comes before the reply to the call that asked for it, as it may.
///
/// Calls against the protocol (a second binding, an unknown session, a token with forbidden characters) get an error.
class FakePortal final : public QDBusVirtualObject {
public:
    /// On the bus from now on, until the connection ends or `leave`.
    explicit FakePortal(QDBusConnection bus);
    ~FakePortal() override { leave(); }

    void leave();

    /// Keeps the value and tells everybody.
    void changeSetting(const QString& group, const QString& key, const QVariant& value);
    /// The user presses the key of a shortcut. False where no session has bound it.
    bool activate(const QString& id);
    void sendActivated(const QString& session, const QString& id);
    /// The desktop ends a session by itself.
    void closeSession(const QString& session);

    QMap<QString, QVariantMap> settings; ///< by group and key
    bool isSilent = false; ///< takes calls and answers nothing
    bool hasShortcuts = true;
    bool hasRegistry = true;
    uint responseToCreate = 0;
    uint responseToBind = 0;
    QString triggerDescription = QStringLiteral("Ctrl+Shift+S"); ///< what the shortcuts are bound to

    struct DesktopSession {
        QString path;
        QString client; ///< unique name
        QStringList shortcuts; ///< that are bound
        bool wasBound = false;
    };
    QList<DesktopSession> sessions; ///< that are open
    QStringList calls; ///< one line each, in order: the method, then what matters of its arguments

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
