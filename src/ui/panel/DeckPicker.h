#pragma once

#include "foundation/Signal.h"
#include "ui/widgets/ButtonBase.h"

#include <QMenu>

namespace cuebright {

class DeckNameDialog;

/// A button with the name of the active deck and a menu of all decks, and the alerts that name a deck. It has no
/// padding on the right, so its focus ring is drawn outside.
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
