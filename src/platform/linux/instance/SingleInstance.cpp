#include "platform/system/SingleInstance.h"

#include "platform/linux/instance/ApplicationService.h"
#include "platform/linux/instance/InstanceLock.h"

#include <cstdio>
#include <cstdlib>

namespace cuebright {

namespace {

/// What the launcher gave this process for the window it is expected to open. Qt removes it from the environment.
QVariantMap launchData()
{
    QVariantMap data;
    const auto add = [&data](const char* variable, const QString& key) {
        if (const auto text = qEnvironmentVariable(variable); !text.isEmpty())
            data.insert(key, text);
    };
    add("XDG_ACTIVATION_TOKEN", QStringLiteral("activation-token"));
    add("DESKTOP_STARTUP_ID", QStringLiteral("desktop-startup-id"));
    return data;
}

/// A toggle that the program was started for must not hide what the start has just shown.
RemoteRequest asFirstRequest(RemoteRequest request)
{
    if (request.action == RemoteRequest::Action::TogglePanel)
        request.action = RemoteRequest::Action::ShowPanel;
    return request;
}

std::optional<int> exitStatusFor(InstanceClaim claim)
{
    switch (claim) {
    case InstanceClaim::Granted:
    case InstanceClaim::Unavailable:
        return std::nullopt;
    case InstanceClaim::HandedOver:
        break;
    case InstanceClaim::Queued:
        std::fputs("Cuebright is running already but does not answer; it shows its panel when it does.\n", stderr);
        break;
    case InstanceClaim::Unreachable:
        std::fputs("Cuebright is running already but cannot be reached.\n", stderr);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

} // namespace

struct SingleInstance::System {
    const QVariantMap data = launchData();
    InstanceLock lock {};
    std::optional<ApplicationService> service {};
    bool isLockUnreachable = false; ///< held by an instance without a socket, which may still be on the bus
};

SingleInstance::SingleInstance()
    : m_system(std::make_unique<System>())
{
}

SingleInstance::~SingleInstance() = default;

std::optional<int> SingleInstance::claimLock()
{
    const auto& data = m_system->data;
    const auto claim = m_system->lock.claim(data.isEmpty() ? std::string() : data.first().toString().toStdString());
    m_system->isLockUnreachable = claim == InstanceClaim::Unreachable;
    return m_system->isLockUnreachable ? std::nullopt : exitStatusFor(claim);
}

/// Two programs may share one bus but no folder for the lock.
std::optional<int> SingleInstance::claimName()
{
    m_system->service.emplace(
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("application service")));
    const auto claim = m_system->service->claim(m_system->data);
    const bool isHandedOver = claim == InstanceClaim::HandedOver || claim == InstanceClaim::Queued;
    return exitStatusFor(m_system->isLockUnreachable && !isHandedOver ? InstanceClaim::Unreachable : claim);
}

void SingleInstance::deliver(std::function<void(const RemoteRequest&)> perform)
{
    const auto isStarting = std::make_shared<bool>(true);
    const auto pass = [isStarting, perform = std::move(perform)](
                          const RemoteRequest& request) { perform(*isStarting ? asFirstRequest(request) : request); };
    m_system->service->deliver(pass);
    m_system->lock.deliver(pass);
    *isStarting = false;
}

} // namespace cuebright
