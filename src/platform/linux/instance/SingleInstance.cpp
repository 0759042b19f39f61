#include "platform/system/SingleInstance.h"

#include "platform/linux/instance/ApplicationBusName.h"
#include "platform/linux/instance/InstanceLock.h"

#include <cstdio>
#include <cstdlib>

namespace cuebright {

namespace {

/// What the launcher gave this process for the window that it is expected to open.
ApplicationBusName::PlatformData launchData()
{
    ApplicationBusName::PlatformData data;
    const auto add = [&data](const char* variable, const char* key) {
        if (const char* const text = std::getenv(variable); text && *text != '\0')
            data.emplace_back(key, text);
    };
    add("XDG_ACTIVATION_TOKEN", "activation-token");
    add("DESKTOP_STARTUP_ID", "desktop-startup-id");
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

/// The lock comes first, as the quicker one, and holds without a bus too; the bus has the last word, because two
/// programs may see one bus and different folders.
struct SingleInstance::System {
    InstanceLock lock;
    ApplicationBusName name;
    std::optional<int> exitStatus;
};

SingleInstance::SingleInstance()
    : m_system(std::make_unique<System>())
{
    const auto data = launchData();
    const auto lock = m_system->lock.claim(data.empty() ? std::string() : data.front().second);
    const bool isAnswered = lock == InstanceClaim::HandedOver || lock == InstanceClaim::Queued;
    const auto name = isAnswered ? lock : m_system->name.claim(data);
    const bool isHeldOutOfReach = lock == InstanceClaim::Unreachable && name != InstanceClaim::HandedOver;
    m_system->exitStatus = exitStatusFor(isHeldOutOfReach ? lock : name);
}

SingleInstance::~SingleInstance() = default;

std::optional<int> SingleInstance::exitStatus() const { return m_system->exitStatus; }

void SingleInstance::deliver(std::function<void(const RemoteRequest&)> perform)
{
    const auto isStarting = std::make_shared<bool>(true);
    const auto pass = [isStarting, perform = std::move(perform)](
                          const RemoteRequest& request) { perform(*isStarting ? asFirstRequest(request) : request); };
    m_system->name.deliver(pass);
    m_system->lock.deliver(pass);
    *isStarting = false;
}

} // namespace cuebright
