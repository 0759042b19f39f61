#include "ui/editor/MarkdownFormatting.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace cuebright {

int characterCount(const QString& text)
{
    QTextBoundaryFinder boundaries(QTextBoundaryFinder::Grapheme, text);
    int count = 0;
    while (boundaries.toNextBoundary() != -1)
        ++count;
    return count;
}

TextEdit wrapEdit(const QString& text, TextRange selection, const QString& marker)
{
    const QString replacement = marker + text.mid(selection.location, selection.length) + marker;
    if (selection.length > 0)
        return {selection, replacement, {selection.location, characterCount(replacement)}};
    return {selection, replacement, {selection.location + characterCount(marker), 0}};
}

TextEdit linkEdit(const QString& text, TextRange selection)
{
    if (selection.length == 0)
        return {selection, QStringLiteral("[link text](url)"), {selection.location + 1, 9}};
    const auto linked = text.mid(selection.location, selection.length);
    return {selection, QStringLiteral("[%1](url)").arg(linked), {selection.location + characterCount(linked) + 3, 3}};
}

TextEdit linePrefixEdit(const QString& text, TextRange selection, const QString& prefix)
{
    const int caret = selection.location;
    const auto lineFeed = caret > 0 ? text.lastIndexOf(QLatin1Char('\n'), caret - 1) : -1;
    const int lineStart = static_cast<int>(lineFeed) + 1;
    const int count = characterCount(prefix);
    if (QStringView(text).sliced(lineStart).startsWith(prefix))
        return {{lineStart, count}, {}, {std::max(caret - count, 0), 0}};
    return {{lineStart, 0}, prefix, {caret + count, 0}};
}

TextRange initialSelection(const QString& text)
{
    const auto prefix = QStringLiteral("# ");
    if (!text.startsWith(prefix))
        return {};
    const auto start = static_cast<int>(prefix.size());
    const auto lineFeed = text.indexOf(QLatin1Char('\n'), start);
    const auto end = static_cast<int>(lineFeed < 0 ? text.size() : lineFeed);
    return {start, end - start};
}

} // namespace cuebright
