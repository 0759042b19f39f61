#include "platform/system/ProcessSetup.h"

namespace cuebright {

struct ProcessSetup::System { };

ProcessSetup::ProcessSetup() = default;

ProcessSetup::~ProcessSetup() = default;

std::vector<std::string> ProcessSetup::qtOptions() { return {}; }

void ProcessSetup::onApplicationCreated() { }

} // namespace cuebright
