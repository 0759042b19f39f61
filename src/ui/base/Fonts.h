#pragma once

#include <QFont>

namespace cuebright {

/// The size that a font is drawn in: rounded and clamped to 1 … 400 logical pixels.
[[nodiscard]] int drawnSize(double pixels);

/// The panel's three font families, as configured on the desktop.
[[nodiscard]] QFont systemFont(double pixels, QFont::Weight weight = QFont::Normal);
[[nodiscard]] QFont monospacedFont(double pixels, QFont::Weight weight = QFont::Normal);
[[nodiscard]] QFont serifFont(double pixels, QFont::Weight weight = QFont::Normal);

/// The same font with `pixels` of extra space after each letter.
[[nodiscard]] QFont letterSpaced(QFont font, double pixels);

} // namespace cuebright
