#pragma once

#include "foundation/Signal.h"
#include "store/Change.h"
#include "timer/TimerManager.h"
#include "ui/base/CoalescedCall.h"
#include "ui/base/UiContext.h"
#include "ui/card/CardArea.h"

#include <QWidget>

#include <optional>

class QVBoxLayout;

namespace cuebright {

class FooterView;
class HeaderView;
class MarkdownEditor;
class TextViewManager;

/// The content of the panel: header, the card or its editor, a rule, footer. Refreshes at most once per turn of the
/// event loop.
class CardContentView final : public QWidget {
public:
    explicit CardContentView(const UiContext& context, QWidget* parent = nullptr);

    /// The margins left and right of the column in a panel of `width`, in logical pixels.
    [[nodiscard]] static int columnPadding(int width);

    /// Focuses the card, or its editor while that is open.
    void takeFocus();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeEditView();
    void onStoreWillChange(const Change& change);
    void onThemeChanged();
    void toggleOverwrite();
    void refresh();
    [[nodiscard]] QWidget& shownContent() const;
    void fadeOutWhatIsShown(const Animation& animation);
    void showEditor(bool isEditing);

    const UiContext& m_context;
    TimerManager m_timerManager;
    QVBoxLayout* m_column;
    TextViewManager* m_editorManager;
    HeaderView* m_header;
    CardArea* m_cardArea;
    QWidget* m_editView = nullptr; ///< made with its content for the first edit
    MarkdownEditor* m_editor = nullptr;
    QWidget* m_rule;
    FooterView* m_footer;
    bool m_showsEditor = false;
    // Pending for the next refresh:
    CardArea::Content m_cardContent = CardArea::Content::Stale;
    std::optional<Animation> m_cardAnimation;
    std::optional<Animation> m_editAnimation;
    bool m_editBegins = true; ///< an edit has begun since the last refresh, even if one also ended
    CoalescedCall m_refresh;
    Subscription m_storeSubscription;
    Subscription m_appearanceSubscription;
    Subscription m_accessibilitySubscription;
    Subscription m_exclusionSubscription;
    Subscription m_absenceSubscription;
    Subscription m_overwriteSubscription;
};

} // namespace cuebright
