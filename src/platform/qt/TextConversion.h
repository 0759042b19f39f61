#pragma once

#include <QString>

#include <string>
#include <string_view>

/// From the core's UTF-8 to the toolkit's UTF-16 and back, for what the user reads and writes.
namespace cuebright {

[[nodiscard]] QString toQString(std::string_view utf8);

/// Unpaired surrogates, which UTF-8 cannot hold, become U+FFFD.
[[nodiscard]] std::string toUtf8(const QString& text);

/// All blanks, line breaks and controls become spaces.
[[nodiscard]] QString toOneLine(QString text);

/// `text` on one line for a menu or a list, in which the toolkit gives "&" a meaning of its own.
[[nodiscard]] QString toActionText(std::string_view utf8);

/// `text` on one line for a window title, in which the toolkit gives "[*]" a meaning of its own.
[[nodiscard]] QString toWindowTitle(std::string_view utf8);

} // namespace cuebright
