#include "platform/qt/ProcessSetup.h"

namespace cuebright {

struct ProcessSetup::System { };

ProcessSetup::ProcessSetup() = default;

ProcessSetup::~ProcessSetup() = default;

void ProcessSetup::applicationIsThere() { }

} // namespace cuebright
