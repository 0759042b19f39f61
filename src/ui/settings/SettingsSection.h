#pragma once

#include "ui/base/ColorRole.h"
#include "ui/base/UiContext.h"

#include <QWidget>

class QVBoxLayout;

namespace cuebright {

class Label;

// Font sizes of the settings, in pixels.
inline constexpr double kSettingsTextSize = 13;
inline constexpr double kSettingsNoteSize = 12;

/// A titled, framed group of settings.
class SettingsSection final : public QWidget {
public:
    SettingsSection(const UiContext& context, const QString& title, QWidget* parent);

    void add(QWidget* widget);
    /// Adds a small explanatory text.
    Label* addNote(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const UiContext& m_context;
    QWidget* m_frame;
    QVBoxLayout* m_rows;
};

} // namespace cuebright
