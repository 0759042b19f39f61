#pragma once

#include <QFont>

namespace cuebright {

/// The size in which a font is drawn: rounded and limited to 1 … 400, as Qt draws no others. Logical pixels.
[[nodiscard]] int drawnSize(double pixels);

/// The three font families of the panel, as the desktop names them.
[[nodiscard]] QFont systemFont(double pixels, QFont::Weight weight = QFont::Normal);
[[nodiscard]] QFont monospacedFont(double pixels, QFont::Weight weight = QFont::Normal);
[[nodiscard]] QFont serifFont(double pixels, QFont::Weight weight = QFont::Normal);

/// The same font with so many pixels between its letters.
[[nodiscard]] QFont letterSpaced(QFont font, double pixels);

} // namespace cuebright
