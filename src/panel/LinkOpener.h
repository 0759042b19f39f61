#pragma once

#include <string_view>

namespace cuebright {

/// Whether a link's target leads somewhere that a click may open: web pages and mail, nothing else.
[[nodiscard]] bool isOpenableLink(std::string_view target);

/// Opens such a target in the user's browser or mail program; does nothing with any other.
void openLink(std::string_view target);

} // namespace cuebright
