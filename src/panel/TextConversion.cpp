#include "panel/TextConversion.h"

#include <QStringDecoder>

#include <algorithm>
#include <utility>
#include <vector>

namespace cuebright {

QString toQString(std::string_view utf8)
{
    // QString::fromUtf8 drops a U+FEFF at the start.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(QByteArrayView(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

std::string toUtf8(const QString& text)
{
    QString paired = text;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!text[i].isSurrogate())
            continue;
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            ++i;
        else
            paired[i] = QChar(QChar::ReplacementCharacter);
    }
    return paired.toStdString();
}

namespace {

QString toOneLine(std::string_view utf8)
{
    auto text = toQString(utf8);
    for (auto& c : text) {
        if (c.isSpace() || c.category() == QChar::Other_Control)
            c = QLatin1Char(' ');
    }
    return text;
}

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

QString toActionText(std::string_view utf8) { return toOneLine(utf8).replace(QLatin1Char('&'), QStringLiteral("&&")); }

QString toWindowTitle(std::string_view utf8)
{
    return toOneLine(utf8).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

} // namespace cuebright
