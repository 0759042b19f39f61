#pragma once

#include "foundation/Signal.h"
#include "ui/widgets/ButtonBase.h"

#include <QMenu>

namespace cuebright {

class DeckNameDialog;

/// The name of the active deck, with a menu of all decks under it, and the alerts that name a deck. Its right edge is
/// that of its symbol; where the keyboard is shows around it, outside.
class DeckPicker final : public ButtonBase {
public:
    DeckPicker(const UiContext& context, QWidget* parent);

    void refresh();
    void showNewDeckAlert();
    void showRenameDeckAlert();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void openMenu();
    [[nodiscard]] double nameWidth() const;

    QString m_name; ///< as shown
    QMenu m_decks;
    QMenu m_commands;
    DeckNameDialog* m_newDeckAlert = nullptr; ///< made when first needed
    DeckNameDialog* m_renameDeckAlert = nullptr;
    Subscription m_renameSubscription;
};

} // namespace cuebright
