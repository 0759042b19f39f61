#include "platform/system/ProcessSetup.h"

#include "platform/macos/TerminationSignals.h"

namespace cuebright {

struct ProcessSetup::System {
    TerminationSignals terminationSignals;
    Subscription subscription {};
};

ProcessSetup::ProcessSetup()
    : m_system(std::make_unique<System>())
{
}

ProcessSetup::~ProcessSetup() = default;

std::vector<std::string> ProcessSetup::qtOptions() { return {}; }

void ProcessSetup::onApplicationCreated()
{
    m_system->subscription =
        m_system->terminationSignals.requested.subscribe([this] { terminationRequested.notify(); });
}

} // namespace cuebright
