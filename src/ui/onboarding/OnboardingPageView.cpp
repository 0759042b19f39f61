#include "ui/onboarding/OnboardingPageView.h"

#include "platform/qt/QtColors.h"
#include "ui/base/Fonts.h"
#include "ui/widgets/Label.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace cuebright {

namespace {

constexpr int kIconHeight = 48;
constexpr int kTitleGap = 14;
constexpr int kTextGap = 10;
constexpr int kRowsGap = 16;
constexpr int kRowGap = 6;
constexpr int kKeysWidth = 90;
constexpr double kTitleSize = 22;
constexpr double kTextSize = 14;
constexpr double kKeysSize = 13;

int heightOf(const QWidget* widget, int width)
{
    return widget->hasHeightForWidth() ? widget->heightForWidth(width) : widget->sizeHint().height();
}

/// A shortcut in a column of fixed width, and its description.
class KeyRow final : public QWidget {
public:
    KeyRow(const UiContext& context, const OnboardingPage::Row& row, QWidget* parent)
        : QWidget(parent)
        , m_keys(new Label(
              context, monospacedFont(kKeysSize, QFont::DemiBold), ColorRole::Text, Label::WhenNarrow::Keep, this))
        , m_label(new Label(context, systemFont(kTextSize), ColorRole::Muted, Label::WhenNarrow::Keep, this))
    {
        m_keys->setText(row.keys);
        m_label->setText(row.label);
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        const auto keys = m_keys->sizeHint();
        const auto label = m_label->sizeHint();
        return {kKeysWidth + label.width(), std::max(keys.height(), label.height())};
    }

protected:
    void resizeEvent(QResizeEvent*) override
    {
        m_keys->setGeometry(0, 0, kKeysWidth, height());
        m_label->setGeometry(kKeysWidth, 0, width() - kKeysWidth, height());
    }

private:
    Label* m_keys;
    Label* m_label;
};

} // namespace

int scaledGap(int gap, double scale) { return static_cast<int>(std::lround(gap * scale)); }

OnboardingPageView::OnboardingPageView(const UiContext& context, const OnboardingPage& page, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_icon(page.icon)
    , m_title(makeText(page.title, systemFont(kTitleSize, QFont::DemiBold), ColorRole::Text))
{
    setAccessibleName(page.title);
    add(m_title, kTitleGap);
    if (!page.advice.isEmpty())
        add(makeText(page.advice, systemFont(kTextSize), ColorRole::Text), kTextGap);
    if (!page.body.isEmpty())
        add(makeText(page.body, systemFont(kTextSize), ColorRole::Muted), kTextGap);
    for (std::size_t i = 0; i < page.rows.size(); ++i)
        add(new KeyRow(context, page.rows[i], this), i == 0 ? kRowsGap : kRowGap);
}

Label* OnboardingPageView::makeText(const QString& text, const QFont& font, ColorRole color)
{
    m_spokenText += (m_spokenText.isEmpty() ? QString() : QStringLiteral(" ")) + text;
    const auto label = new Label(m_context, font, color, Label::WhenNarrow::Wrap, this);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label->setText(text);
    return label;
}

void OnboardingPageView::add(QWidget* widget, int gapAbove) { m_items.push_back({widget, gapAbove}); }

int OnboardingPageView::heightFor(int width, double gapScale) const
{
    int height = kIconHeight;
    for (const auto& item : m_items)
        height += scaledGap(item.gapAbove, gapScale) + heightOf(item.widget, width);
    return height;
}

void OnboardingPageView::layOut(double gapScale)
{
    int rowWidth = 0;
    for (const auto& item : m_items) {
        if (!item.widget->hasHeightForWidth())
            rowWidth = std::max(rowWidth, item.widget->sizeHint().width());
    }
    int y = kIconHeight;
    for (const auto& item : m_items) {
        y += scaledGap(item.gapAbove, gapScale);
        const int itemHeight = heightOf(item.widget, width());
        const int inset = item.widget->hasHeightForWidth() ? 0 : (width() - rowWidth) / 2;
        item.widget->setGeometry(inset, y, width() - 2 * inset, itemHeight);
        y += itemHeight;
    }
}

void OnboardingPageView::announce() { m_title->announce(); }

void OnboardingPageView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawIcon(painter, m_icon, QRectF((width() - kIconHeight) / 2.0, 0, kIconHeight, kIconHeight),
        toQColor(m_context.colors().accent()));
}

} // namespace cuebright
