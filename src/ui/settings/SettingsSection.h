#pragma once

#include "ui/base/Ink.h"
#include "ui/base/PanelContext.h"

#include <QWidget>

class QVBoxLayout;

namespace cuebright {

class PanelLabel;

// Font sizes of the settings, in pixels.
inline constexpr double kSettingsTextSize = 13;
inline constexpr double kSettingsNoteSize = 12;

/// A framed group of the settings under its title.
class SettingsSection final : public QWidget {
public:
    SettingsSection(const PanelContext& context, const QString& title, QWidget* parent);

    void add(QWidget* widget);
    /// Adds a text that explains the section, as wide as there is room.
    PanelLabel* addNote(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const PanelContext& m_context;
    QWidget* m_frame;
    QVBoxLayout* m_rows;
};

} // namespace cuebright
