#pragma once

#include <QString>

#include <string>
#include <string_view>

/// The one place where the core's UTF-8 and the toolkit's UTF-16 meet.
namespace cuebright {

[[nodiscard]] QString toQString(std::string_view utf8);

/// Unpaired surrogates, which UTF-8 cannot hold, become U+FFFD.
[[nodiscard]] std::string toUtf8(const QString& text);

/// `text` as one line for menus and lists: line breaks and tabs become blanks, and "&" is doubled so that it shows.
[[nodiscard]] QString toActionText(std::string_view utf8);

/// `text` as a window title, in which the toolkit gives "[*]" a meaning of its own.
[[nodiscard]] QString toWindowTitle(std::string_view utf8);

} // namespace cuebright
