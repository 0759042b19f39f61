#include "ui/base/Fonts.h"

#include <QFontDatabase>

#include <algorithm>
#include <cmath>

namespace cuebright {

namespace {

constexpr double kSmallestFont = 1;
constexpr double kLargestFont = 400;

QFont sized(QFont font, double pixels, QFont::Weight weight)
{
    font.setPixelSize(drawnSize(pixels));
    font.setWeight(weight);
    return font;
}

} // namespace

int drawnSize(double pixels) { return static_cast<int>(std::lround(std::clamp(pixels, kSmallestFont, kLargestFont))); }

QFont systemFont(double pixels, QFont::Weight weight)
{
    static const QFont kFont = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    return sized(kFont, pixels, weight);
}

QFont monospacedFont(double pixels, QFont::Weight weight)
{
    static const QFont kFont = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    return sized(kFont, pixels, weight);
}

QFont serifFont(double pixels, QFont::Weight weight)
{
    QFont font(QStringLiteral("serif"));
    font.setStyleHint(QFont::Serif);
    return sized(font, pixels, weight);
}

QFont letterSpaced(QFont font, double pixels)
{
    font.setLetterSpacing(QFont::AbsoluteSpacing, pixels);
    return font;
}

} // namespace cuebright
