#include "ui/editor/DocumentText.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace cuebright {

namespace {

/// What QTextCursor::insertText makes paragraphs of (Qt 6.4), the line feed aside.
constexpr std::array<QChar, 4> kEaten {u'\r', u'\u2029', u'\ufdd0', u'\ufdd1'};

/// The characters that may stand for others: first those without a meaning that fonts leave out, then the
/// noncharacters, then those for private use.
constexpr std::array<std::pair<char16_t, char16_t>, 3> kStandInRanges {
    {{0xfff0, 0xfff8}, {0xfdd2, 0xfdef}, {0xe000, 0xf8ff}}};

template <std::size_t Size>
void replaceAll(QString& text, const std::array<QChar, Size>& from, const std::array<QChar, Size>& to)
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
    : m_standIns(kEaten)
{
    std::vector<bool> isUsed(0x10000);
    for (const auto c : text)
        isUsed[c.unicode()] = true;
    auto next = m_standIns.begin();
    for (const auto& [first, last] : kStandInRanges) {
        for (char32_t c = first; c <= last && next != m_standIns.end(); ++c) {
            if (!isUsed[c])
                *next++ = QChar(static_cast<char16_t>(c));
        }
    }
}

QString DocumentText::encoded(QString text) const
{
    replaceAll(text, kEaten, m_standIns);
    return text;
}

QString DocumentText::encodedInput(QString text) const
{
    std::array<QChar, 4> unknown;
    unknown.fill(QChar::ReplacementCharacter);
    replaceAll(text, m_standIns, unknown);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    text.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
    return encoded(std::move(text));
}

QString DocumentText::decoded(QString documentText) const
{
    documentText.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
    replaceAll(documentText, m_standIns, kEaten);
    return documentText;
}

} // namespace cuebright
