#pragma once

#include "panel/PanelContext.h"
#include "panel/PanelKeys.h"

#include <QWidget>

#include <memory>

namespace cuebright {

class UndoManager;

/// The window with the cards. Owns the undo stack of the whole store and answers the panel's keys before anything in
/// it sees them.
class NotesPanel final : public QWidget {
public:
    explicit NotesPanel(const PanelContext& context);
    ~NotesPanel() override;

    [[nodiscard]] const std::shared_ptr<UndoManager>& undoManager() const { return m_undoManager; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] std::optional<PanelKeyAction> actionFor(const QKeyEvent& event) const;
    void perform(const PanelKeyAction& action);

    const PanelContext& m_context;
    std::shared_ptr<UndoManager> m_undoManager;
};

} // namespace cuebright
