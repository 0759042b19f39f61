#include "ui/menu/SafeFileName.h"

#include "platform/qt/TextConversion.h"

#include <QTextBoundaryFinder>

#include <utility>

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
    }
    return toOneLine(std::move(name));
}

/// The first characters, as a reader counts them, that fit.
QString shortened(const QString& name)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, name);
    qsizetype end = 0;
    for (auto next = finder.toNextBoundary(); next > 0; next = finder.toNextBoundary()) {
        if (toUtf8(name.left(next)).size() > kLongestName)
            break;
        end = next;
    }
    return name.left(end);
}

} // namespace

std::string safeFileName(std::string_view deckName)
{
    auto name = withoutOddCharacters(toQString(deckName));
    // A hidden file, somebody's home, a resource of the toolkit's: signs that mean something at the front.
    const auto isSkipped = [](QChar c) { return c.isSpace() || QLatin1String(".~:").contains(c); };
    qsizetype start = 0;
    while (start < name.size() && isSkipped(name[start]))
        ++start;
    name = shortened(name.mid(start)).trimmed();
    return name.isEmpty() ? "Untitled" : toUtf8(name);
}

} // namespace cuebright
