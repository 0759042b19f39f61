#pragma once

#include <QString>

#include <string>
#include <string_view>

/// Between the core's UTF-8 and Qt's UTF-16.
namespace cuebright {

[[nodiscard]] QString toQString(std::string_view utf8);

/// Unpaired surrogates become U+FFFD.
[[nodiscard]] std::string toUtf8(const QString& text);

/// Replaces each white-space and control character with a space.
[[nodiscard]] QString toOneLine(QString text);

/// `utf8` on one line, with "&" escaped, for the text of a `QAction` or a list item.
[[nodiscard]] QString toActionText(std::string_view utf8);

/// `utf8` on one line, with "[*]" escaped, for a window title.
[[nodiscard]] QString toWindowTitle(std::string_view utf8);

} // namespace cuebright
