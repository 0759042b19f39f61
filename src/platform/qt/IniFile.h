#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace cuebright {

/// Values of a settings file as they stand in it, by key: bare for the section "General", else "section/key".
using IniValues = std::map<std::string, std::string, std::less<>>;

/// Reads the layout in which Qt's QSettings (IniFormat, Qt 6) writes. Takes anything: what is no section and no value
/// is left out, of duplicates the last counts.
[[nodiscard]] IniValues parseIni(std::string_view text);

/// The same layout.
[[nodiscard]] std::string formatIni(const IniValues& values);

/// A value as it stands in the file, for any UTF-8 text: quoted and escaped where needed.
[[nodiscard]] std::string iniValue(std::string_view text);

/// The text that a value of a file means. Unlike QSettings it makes no list of a bare text with commas.
[[nodiscard]] std::string iniText(std::string_view value);

} // namespace cuebright
