#include "ui/card/BlockText.h"

#include "markdown/BlockMetrics.h"
#include "platform/qt/QtColors.h"
#include "platform/qt/TextConversion.h"
#include "ui/base/Fonts.h"

#include <algorithm>

namespace cuebright {

namespace {

constexpr double kCodeBackgroundOpacity = 0.3;

} // namespace

QFont italic(QFont font)
{
    font.setItalic(true);
    return font;
}

QFont blockFont(Block::Kind kind, double fontSize)
{
    switch (kind) {
    case Block::Kind::Heading:
        return serifFont(headingSize(fontSize), QFont::Bold);
    case Block::Kind::Blockquote:
        return italic(systemFont(fontSize));
    case Block::Kind::Bullet:
    case Block::Kind::NumberedItem:
    case Block::Kind::Paragraph:
        break;
    }
    return systemFont(fontSize);
}

QTextCharFormat runFormat(const StyledRun& run, double fontSize, const Colors& colors)
{
    QTextCharFormat format;
    if (run.isCode) {
        const auto font = monospacedFont(fontSize);
        format.setFontFamilies(font.families());
        format.setProperty(QTextFormat::FontPixelSize, font.pixelSize());
        format.setFontStyleHint(QFont::Monospace);
        format.setFontWeight(QFont::Normal); // not the heading's
        format.setFontItalic(false); // nor the quote's
        format.setBackground(toQColor(colors.sep().withAlpha(kCodeBackgroundOpacity)));
    }
    if (run.isBold)
        format.setFontWeight(QFont::Bold);
    if (run.isItalic)
        format.setFontItalic(true);
    if (run.link)
        format.setFontUnderline(true);
    if (run.isItalic || run.link)
        format.setForeground(toQColor(colors.accent()));
    return format;
}

QString displayText(const std::string& utf8) { return toQString(utf8).replace(QLatin1Char('\r'), QLatin1Char(' ')); }

std::unique_ptr<QTextLayout> makeText(const QString& text, const QFont& font)
{
    auto layout = std::make_unique<QTextLayout>(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    layout->setTextOption(option);
    return layout;
}

void breakLines(QTextLayout& layout, double width, double spacing)
{
    double y = 0;
    layout.beginLayout();
    for (auto line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(width, 1.0));
        if (line.lineNumber() > 0)
            y += spacing;
        line.setPosition({0, y});
        y += line.height();
    }
    layout.endLayout();
}

double bottomOfLine(const QTextLayout& layout, int index)
{
    const auto line = layout.lineAt(index);
    return line.y() + line.height();
}

} // namespace cuebright
