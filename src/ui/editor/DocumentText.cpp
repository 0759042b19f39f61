#include "ui/editor/DocumentText.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace cuebright {

namespace {

/// The characters besides line feed that QTextCursor::insertText turns into paragraphs (Qt 6.4).
constexpr DocumentText::Characters kParagraphMarks {u'\r', u'\u2029', u'\ufdd0', u'\ufdd1'};

/// Where placeholders come from, in order of preference: unassigned specials, noncharacters, private use.
constexpr std::array<std::pair<char16_t, char16_t>, 3> kPlaceholderRanges {
    {{0xfff0, 0xfff8}, {0xfdd2, 0xfdef}, {0xe000, 0xf8ff}}};

void replaceAll(QString& text, const DocumentText::Characters& from, const DocumentText::Characters& to)
{
    const auto isAffected = [&from](QChar c) { return std::find(from.begin(), from.end(), c) != from.end(); };
    if (std::none_of(text.cbegin(), text.cend(), isAffected))
        return;
    for (auto& c : text) {
        if (const auto found = std::find(from.begin(), from.end(), c); found != from.end())
            c = to[static_cast<std::size_t>(found - from.begin())];
    }
}

} // namespace

DocumentText::DocumentText(QStringView text)
    : m_placeholders(kParagraphMarks)
{
    std::vector<bool> isUsed(0x10000);
    for (const auto c : text)
        isUsed[c.unicode()] = true;
    auto next = m_placeholders.begin();
    for (const auto& [first, last] : kPlaceholderRanges) {
        for (char32_t c = first; c <= last && next != m_placeholders.end(); ++c) {
            if (!isUsed[c])
                *next++ = QChar(static_cast<char16_t>(c));
        }
    }
}

QString DocumentText::encoded(QString text) const
{
    replaceAll(text, kParagraphMarks, m_placeholders);
    return text;
}

QString DocumentText::encodedInput(QString text) const
{
    Characters unknown;
    unknown.fill(QChar::ReplacementCharacter);
    replaceAll(text, m_placeholders, unknown);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    text.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
    return encoded(std::move(text));
}

QString DocumentText::decoded(QString documentText) const
{
    documentText.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
    replaceAll(documentText, m_placeholders, kParagraphMarks);
    return documentText;
}

} // namespace cuebright
