#pragma once

#include "ui/animation/AnimatedValue.h"
#include "ui/base/UiContext.h"
#include "ui/panel/FooterContent.h"
#include "ui/widgets/Icon.h"

#include <QWidget>

#include <functional>
#include <vector>

namespace cuebright {

class ChromeButton;
class ErrorNotice;
class Label;
class TimerManager;
class TimerView;

/// The panel's last line: position, word count, timer, messages and the buttons.
class FooterView final : public QWidget {
    Q_OBJECT

public:
    FooterView(const UiContext& context, TimerManager& timer, QWidget* parent);

    void refresh();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

Q_SIGNALS:
    /// The button with the focus is about to be disabled.
    void focusLost();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// An item that fades in and out, or moves when others do.
    struct Item {
        QWidget* widget;
        std::function<void(double)> setOpacity; ///< absent: always shown
        bool isPresent = false;
        double opacity = 0;
        double formerOpacity = 0;
        double x = 0;
        double formerX = 0;
    };

    ChromeButton* addTitle(const QString& text, const char* accessibleName, const char* hint);
    ChromeButton* addArrow(Icon icon, const char* name, const char* hint);
    [[nodiscard]] Item itemFor(Label* label) const;
    [[nodiscard]] std::vector<ChromeButton*> shownButtons() const;
    [[nodiscard]] FooterWidths wantedWidths() const;
    void beginTransition();
    void layOut();
    void place(Item& item, const FooterPlaces::Place& target);
    void placeButtons(int x);

    const UiContext& m_context;
    FooterContent m_content;
    Label* m_position;
    Item m_wordCount;
    Item m_timer;
    ErrorNotice* m_errorNotice;
    Item m_error;
    Label* m_feedbackLabel;
    Item m_feedback;
    ChromeButton* m_edit;
    ChromeButton* m_previous;
    ChromeButton* m_next;
    ChromeButton* m_cancel;
    ChromeButton* m_done;
    AnimatedValue m_transition; ///< from the former positions and opacities to the new
};

} // namespace cuebright
