#include "app/SafeFileName.h"

#include "panel/TextConversion.h"

#include <QTextBoundaryFinder>

namespace cuebright {

namespace {

/// File systems take 255; a suffix and the name of the temporary file beside it need some.
constexpr std::size_t kLongestName = 200;

QString withoutOddCharacters(QString name)
{
    for (auto& c : name) {
        if (c == QLatin1Char('/') || c == QLatin1Char('\\'))
            c = QLatin1Char('-');
        else if (c == QLatin1Char('"'))
            c = QLatin1Char('\''); // the file dialog would take what is between two of them for the name
        else if (c.isSpace() || c.category() == QChar::Other_Control)
            c = QLatin1Char(' ');
    }
    return name;
}

/// Shortened by whole characters, as a reader counts them.
QString shortened(QString name)
{
    while (toUtf8(name).size() > kLongestName) {
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, name);
        finder.toEnd();
        name.truncate(finder.toPreviousBoundary());
    }
    return name;
}

} // namespace

std::string safeFileName(std::string_view deckName)
{
    // What is that far behind is cut off anyway.
    auto name = withoutOddCharacters(toQString(deckName).left(kLongestName));
    // A hidden file, somebody's home, a resource of the toolkit's: signs that mean something at the front.
    const auto isSkipped = [](QChar c) { return c.isSpace() || QLatin1String(".~:").contains(c); };
    qsizetype start = 0;
    while (start < name.size() && isSkipped(name[start]))
        ++start;
    name = shortened(name.mid(start)).trimmed();
    return name.isEmpty() ? "Untitled" : toUtf8(name);
}

} // namespace cuebright
