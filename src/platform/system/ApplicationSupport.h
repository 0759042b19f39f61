#pragma once

#include <filesystem>
#include <optional>

namespace cuebright {

/// The folder for the user's application data; nothing where there is none. Defined once for each system: on Windows,
/// Qt's GenericDataLocation is another folder.
[[nodiscard]] std::optional<std::filesystem::path> applicationSupportFolder();

} // namespace cuebright
