#pragma once

#include <QScrollArea>

class QVBoxLayout;

namespace cuebright {

/// A tab of the settings: a scrollable column of sections.
class SettingsPage : public QScrollArea {
protected:
    SettingsPage(const QString& name, QWidget* parent);

    /// The parent of the sections.
    [[nodiscard]] QWidget* page() const { return widget(); }
    [[nodiscard]] QVBoxLayout& column() const { return *m_column; }

private:
    QVBoxLayout* m_column;
};

} // namespace cuebright
