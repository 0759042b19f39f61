#pragma once

#include "ui/panel/PanelKeys.h"

#include <QObject>

#include <functional>

namespace cuebright {

class NotesPanel;
struct UiContext;

/// Performs the panel's keys before its menus and widgets see them.
///
/// A key press goes on to the next of these until one takes it:
/// 1. an open pop-up or sheet, or the menu bar while it has focus;
/// 2. this monitor, by `panelKeyAction()`;
/// 3. the focused widget, if it accepts the ShortcutOverride (the editor's own keys, MarkdownEditorInput.cpp);
/// 4. the shortcuts of the menus;
/// 5. the focused widget, then its parents.
class KeyMonitor final : public QObject {
public:
    /// Call when `panel` has its native window. `isPanelVisible` is false as soon as the panel begins to hide. All that
    /// is passed in must outlive this.
    KeyMonitor(const UiContext& context, NotesPanel& panel, std::function<bool()> isPanelVisible);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool isKeyboardElsewhere() const;
    [[nodiscard]] PanelState state() const;
    void perform(const PanelKeyAction& action);

    const UiContext& m_context;
    NotesPanel& m_panel;
    std::function<bool()> m_isPanelVisible;
};

} // namespace cuebright
