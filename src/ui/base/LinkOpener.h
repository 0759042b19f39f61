#pragma once

#include <string_view>

namespace cuebright {

/// Whether a link's target leads somewhere that a click may open: any address with a scheme but scripts.
[[nodiscard]] bool isOpenableLink(std::string_view target);

/// Opens such a target with the program that the user's desktop has for it; does nothing with any other.
void openLink(std::string_view target);

} // namespace cuebright
