#include "platform/qt/QtUuidSource.h"

#include <QUuid>

#include <algorithm>

namespace cuebright {

Uuid QtUuidSource::makeUuid()
{
    const auto fresh = QUuid::createUuid().toRfc4122();
    Uuid uuid;
    std::transform(fresh.begin(), fresh.end(), uuid.bytes.begin(), [](char c) { return static_cast<std::uint8_t>(c); });
    return uuid;
}

} // namespace cuebright
