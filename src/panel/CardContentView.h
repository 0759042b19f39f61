#pragma once

#include "foundation/Signal.h"
#include "foundation/WeakTarget.h"
#include "markdown/Block.h"
#include "markdown/BlockMetrics.h"
#include "markdown/CardParser.h"
#include "panel/PanelContext.h"

#include <QWidget>

namespace cuebright {

class CardArea;
struct Change;
class FooterView;
class HeaderView;
class MarkdownEditor;

/// The whole content of the panel: header, the card or its editor, a rule, footer. Follows the store, once per turn of
/// the event loop however much has changed.
class CardContentView final : public QWidget {
public:
    using Block = cuebright::Block;

    explicit CardContentView(const PanelContext& context, QWidget* parent = nullptr);

    /// The space left and right of the column in a panel of `width`, in logical pixels.
    [[nodiscard]] static int columnPadding(int width);
    [[nodiscard]] static std::vector<Block> parseMarkdown(std::string_view content)
    {
        return cuebright::parseMarkdown(content);
    }
    [[nodiscard]] static double bottomPadding(const Block& block) { return cuebright::bottomPadding(block.kind); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void takeNotice(const Change& change);
    void scheduleRefresh();
    void refresh();
    void showEditor(bool isEditing);

    const PanelContext& m_context;
    HeaderView* m_header;
    CardArea* m_cardArea;
    MarkdownEditor* m_editor;
    QWidget* m_rule;
    FooterView* m_footer;
    bool m_refreshScheduled = false;
    bool m_showsEditor = false;
    bool m_editBegins = false; ///< since the last refresh, even if another one ended in the same turn
    WeakTarget m_weakTarget;
    Subscription m_storeSubscription;
    Subscription m_appearanceSubscription;
    Subscription m_accessibilitySubscription;
};

} // namespace cuebright
