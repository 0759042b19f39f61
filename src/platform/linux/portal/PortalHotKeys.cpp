#include "platform/linux/portal/PortalHotKeys.h"

#include "platform/linux/portal/PortalShortcut.h"

#include <utility>

namespace cuebright {

namespace {

class Registration final : public HotKeyRegistration {
public:
    Registration(const HotKey& key, std::function<void()> pressed)
        : m_key(key)
        , m_pressed(std::move(pressed))
    {
    }

    void waitFor(Signal<const QDBusConnection&>& started)
    {
        m_start = started.subscribe([this](const QDBusConnection& bus) { begin(bus); });
    }
    void begin(const QDBusConnection& bus) { m_shortcut.emplace(bus, m_key, m_pressed); }
    bool isSystemWide() const override { return m_shortcut && m_shortcut->isBound(); }

private:
    HotKey m_key;
    std::function<void()> m_pressed;
    std::optional<PortalShortcut> m_shortcut;
    Subscription m_start;
};

} // namespace

PortalHotKeys::PortalHotKeys(std::function<QDBusConnection()> connect)
    : m_connect(std::move(connect))
{
}

PortalHotKeys::~PortalHotKeys()
{
    if (m_bus)
        QDBusConnection::disconnectFromBus(m_bus->name());
}

void PortalHotKeys::start()
{
    m_bus = m_connect();
    if (m_bus->isConnected())
        m_started.notify(*m_bus);
}

std::unique_ptr<HotKeyRegistration> PortalHotKeys::registerHotKey(const HotKey& key, std::function<void()> pressed)
{
    auto registration = std::make_unique<Registration>(key, std::move(pressed));
    if (!m_bus)
        registration->waitFor(m_started);
    else if (m_bus->isConnected())
        registration->begin(*m_bus);
    return registration;
}

} // namespace cuebright
