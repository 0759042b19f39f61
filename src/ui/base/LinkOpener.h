#pragma once

#include <string_view>

namespace cuebright {

/// Whether a click may open this link target: any URL with a scheme except scripts and data.
[[nodiscard]] bool isOpenableLink(std::string_view target);

/// Opens the target in the desktop's default program; does nothing if it is not openable.
void openLink(std::string_view target);

} // namespace cuebright
