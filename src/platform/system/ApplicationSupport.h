#pragma once

#include <filesystem>
#include <optional>

namespace cuebright {

/// The folder in which programs keep a user's data; nothing where there is none. Defined once for each system: what Qt
/// calls generic is another folder on Windows.
[[nodiscard]] std::optional<std::filesystem::path> applicationSupportFolder();

} // namespace cuebright
