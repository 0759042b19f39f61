#pragma once

#include "platform/UuidSource.h"

namespace cuebright {

class QtUuidSource final : public UuidSource {
public:
    Uuid makeUuid() override;
};

} // namespace cuebright
