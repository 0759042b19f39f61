#include "platform/linux/portal/Portal.h"

#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

#include <utility>

namespace cuebright {

Portal::Portal(QDBusConnection bus, std::function<void()> appeared, std::function<void()> left)
    : m_bus(std::move(bus))
    , m_appeared(std::move(appeared))
    , m_left(std::move(left))
    , m_watcher(service(), m_bus)
{
    QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, &m_context,
        [this](const QString&, const QString& oldOwner, const QString& newOwner) { changeOwner(oldOwner, newOwner); });
}

void Portal::call(const QString& interface, const QString& method, const QVariantList& arguments,
    std::function<void(const QDBusMessage&)> answered)
{
    auto message = QDBusMessage::createMethodCall(service(), path(), interface, method);
    message.setArguments(arguments);
    ++m_pendingReplies;
    auto* const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), &m_context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
        [this, watcher, generation = m_generation, answered = std::move(answered)] {
            watcher->deleteLater();
            if (generation != m_generation)
                return;
            --m_pendingReplies;
            answered(watcher->reply());
        });
}

QVariant Portal::unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

void Portal::changeOwner(const QString& oldOwner, const QString& newOwner)
{
    // A call to a portal that is not running starts it and is then delivered to it.
    const bool isStartedByUs = oldOwner.isEmpty() && m_pendingReplies > 0;
    if (isStartedByUs)
        return;
    ++m_generation;
    m_pendingReplies = 0;
    if (!oldOwner.isEmpty())
        m_left();
    if (!newOwner.isEmpty())
        m_appeared();
}

} // namespace cuebright
