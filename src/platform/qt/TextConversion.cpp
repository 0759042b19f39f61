#include "platform/qt/TextConversion.h"

#include <QStringDecoder>

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

QString toOneLine(QString text)
{
    for (auto& c : text) {
        if (c.isSpace() || c.category() == QChar::Other_Control)
            c = QLatin1Char(' ');
    }
    return text;
}

QString toActionText(std::string_view utf8)
{
    return toOneLine(toQString(utf8)).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QString toWindowTitle(std::string_view utf8)
{
    return toOneLine(toQString(utf8)).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

} // namespace cuebright
