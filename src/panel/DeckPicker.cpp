#include "panel/DeckPicker.h"

#include "panel/TextConversion.h"
#include "store/CardStore.h"
#include "theme/Fonts.h"
#include "theme/QtColors.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace cuebright {

namespace {

constexpr double kLetterSpacing = 1.8;
constexpr int kChevronWidth = 7;
constexpr int kChevronGap = 4;
constexpr int kPadding = 4; ///< room for the focus ring

/// The picker's menu marks the active deck in its text, so that all names line up in every style.
QString menuText(const Deck& deck, bool isActive)
{
    return (isActive ? QStringLiteral("✓  ") : QStringLiteral("    ")) + toActionText(deck.name);
}

} // namespace

DeckPicker::DeckPicker(const PanelContext& context, QWidget* parent)
    : QAbstractButton(parent)
    , m_context(context)
    , m_menu(this)
{
    setFont(letterSpaced(monospacedFont(11, QFont::Medium), kLetterSpacing));
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setAccessibleDescription(QStringLiteral("Choose which deck to display"));
    connect(this, &QAbstractButton::clicked, this, &DeckPicker::openMenu);
}

void DeckPicker::refresh()
{
    setText(toQString(m_context.store.deckName()).simplified().toUpper());
    setAccessibleName(QStringLiteral("Active deck: ") + toQString(m_context.store.deckName()));
    updateGeometry();
    update();
}

QSize DeckPicker::sizeHint() const
{
    const QFontMetricsF metrics(font());
    return {static_cast<int>(std::ceil(metrics.horizontalAdvance(text()))) + kChevronGap + kChevronWidth + 2 * kPadding,
        static_cast<int>(std::ceil(metrics.height())) + kPadding};
}

QSize DeckPicker::minimumSizeHint() const { return {kChevronGap + kChevronWidth + 2 * kPadding, sizeHint().height()}; }

void DeckPicker::openMenu()
{
    m_menu.clear();
    const auto& store = m_context.store;
    for (std::int64_t i = 0; i < store.deckCount(); ++i) {
        const auto& deck = store.decks()[static_cast<std::size_t>(i)];
        m_menu.addAction(
            menuText(deck, i == store.activeDeckIndex()), this, [this, i] { m_context.store.switchToDeck(i); });
    }
    m_menu.popup(mapToGlobal(QPoint(0, height())));
}

void DeckPicker::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto colors = m_context.colors();
    painter.setPen(toQColor(colors.muted()));
    painter.setFont(font());
    const auto textRect = rect().adjusted(kPadding, 0, -kPadding - kChevronWidth - kChevronGap, 0);
    const auto isCut = width() < sizeHint().width();
    const auto shown = isCut ? QFontMetricsF(font()).elidedText(text(), Qt::ElideRight, textRect.width()) : text();
    painter.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);

    const QPointF centre(width() - kPadding - kChevronWidth / 2.0, height() / 2.0);
    painter.setPen(QPen(toQColor(colors.muted()), 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const double direction : {-1.0, 1.0}) {
        const QPointF tip = centre + QPointF(0, direction * 4);
        painter.drawPolyline(
            QPolygonF({tip + QPointF(-2.5, -direction * 2.5), tip, tip + QPointF(2.5, -direction * 2.5)}));
    }
    if (hasFocus()) {
        painter.setPen(QPen(toQColor(colors.accent()), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
}

} // namespace cuebright
