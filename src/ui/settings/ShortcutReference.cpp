#include "ui/settings/ShortcutReference.h"

#include <QKeySequence>

namespace cuebright {

std::vector<ShortcutSection> shortcutReference()
{
    return {
        {QStringLiteral("Navigation"),
            {{QStringLiteral("Show / Hide window"), QStringLiteral("⌘⇧S")},
                {QStringLiteral("Next card"), QStringLiteral("→  or  ⌘→")},
                {QStringLiteral("Previous card"), QStringLiteral("←  or  ⌘←")},
                {QStringLiteral("Switch deck 1–9"), QStringLiteral("⌘1 – ⌘9")}}},
        {QStringLiteral("Editing"),
            {{QStringLiteral("Toggle edit mode"), QStringLiteral("⌘E")},
                {QStringLiteral("Save card"), QStringLiteral("⌘↩  or  Esc")},
                {QStringLiteral("Cancel edit"), QStringLiteral("⌘.")},
                {QStringLiteral("New card"), QStringLiteral("⌘N")},
                {QStringLiteral("Delete card"), QStringLiteral("⌘D  or  ⌘⌫")},
                {QStringLiteral("Overwrite mode"), QStringLiteral("⌘O")},
                {QStringLiteral("Undo"), QStringLiteral("⌘Z")}, {QStringLiteral("Redo"), QStringLiteral("⌘⇧Z")}}},
        {QStringLiteral("Cards & Decks"),
            {{QStringLiteral("Move card up"), QStringLiteral("⌥⌘↑")},
                {QStringLiteral("Move card down"), QStringLiteral("⌥⌘↓")},
                {QStringLiteral("New deck"), QStringLiteral("⌘⇧N")},
                {QStringLiteral("Export deck"), QStringLiteral("⌘⇧E")}}},
        {QStringLiteral("View"),
            {{QStringLiteral("Increase text size"), QStringLiteral("⌘=")},
                {QStringLiteral("Decrease text size"), QStringLiteral("⌘-")},
                {QStringLiteral("Increase opacity"), QStringLiteral("⌘]")},
                {QStringLiteral("Decrease opacity"), QStringLiteral("⌘[")},
                {QStringLiteral("Toggle word count"), QStringLiteral("⌘⇧W")},
                {QStringLiteral("Settings"), QStringLiteral("⌘,")}}},
    };
}

std::optional<QString> keySymbolNote()
{
    const auto nativeName = QKeySequence(Qt::CTRL | Qt::Key_S).toString(QKeySequence::NativeText);
    if (nativeName.contains(QStringLiteral("⌘")))
        return std::nullopt;
    return QStringLiteral("⌘ is Ctrl and ⌥ is Alt on this keyboard");
}

} // namespace cuebright
