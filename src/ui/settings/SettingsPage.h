#pragma once

#include <QScrollArea>

class QVBoxLayout;

namespace cuebright {

/// One tab of the settings: sections below one another, scrolled where they do not fit.
class SettingsPage : public QScrollArea {
protected:
    SettingsPage(const QString& name, QWidget* parent);

    /// The parent of what is in the page.
    [[nodiscard]] QWidget* page() const { return widget(); }
    [[nodiscard]] QVBoxLayout& column() const { return *m_column; }

private:
    QVBoxLayout* m_column;
};

} // namespace cuebright
