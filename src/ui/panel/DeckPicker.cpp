#include "ui/panel/DeckPicker.h"

#include "foundation/NotificationCenter.h"
#include "platform/qt/QtColors.h"
#include "platform/qt/TextConversion.h"
#include "store/CardStore.h"
#include "ui/accessibility/MenuAccessibility.h"
#include "ui/base/Fonts.h"
#include "ui/base/Notifications.h"
#include "ui/panel/DeckNameDialog.h"
#include "ui/widgets/FocusRing.h"

#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace cuebright {

namespace {

constexpr double kLetterSpacing = 1.8;
constexpr int kChevronWidth = 7;
constexpr int kChevronGap = 5;
constexpr int kMenuGap = 6;
constexpr int kMenuTextWidth = 400;
constexpr qsizetype kShownCharacters = 500; ///< more than any panel has room for

/// The start of a name, on one line.
QString shownName(const std::string& deckName) { return toOneLine(toQString(deckName).left(kShownCharacters)); }

/// The mark is part of the text because not every style aligns checkable and plain items.
QString menuText(const Deck& deck, bool isActive, const QFontMetrics& metrics)
{
    const auto name = metrics.elidedText(shownName(deck.name), Qt::ElideRight, kMenuTextWidth);
    return (isActive ? QStringLiteral("✓  ") : QStringLiteral("    ")) + toActionText(toUtf8(name));
}

} // namespace

DeckPicker::DeckPicker(const UiContext& context, QWidget* parent)
    : ButtonBase(context, parent)
    , m_decks(this)
    , m_commands(this)
{
    offerOpenMenusToScreenReaders(*this);
    setFont(letterSpaced(monospacedFont(11, QFont::Medium), kLetterSpacing));
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setAccessibleDescription(QStringLiteral("Choose which deck to display"));
    new FocusRing(context, this);
    connect(this, &QAbstractButton::clicked, this, &DeckPicker::openMenu);
    m_renameSubscription = context.notifications.observe(kRenameDeckNotification, [this] { showRenameDeckAlert(); });
}

void DeckPicker::refresh()
{
    const auto deckName = m_context.store.deckName();
    const auto name = shownName(deckName).toUpper();
    if (const auto spoken = QStringLiteral("Active deck: ") + toQString(deckName); spoken != accessibleName())
        setAccessibleName(spoken);
    if (name == m_name)
        return;
    m_name = name;
    updateGeometry();
    update();
}

void DeckPicker::showNewDeckAlert()
{
    if (!m_newDeckAlert)
        m_newDeckAlert = new DeckNameDialog(
            DeckNameDialog::newDeck(), [this](const auto& name) { m_context.store.createNewDeck(name); }, this);
    m_newDeckAlert->ask({});
}

void DeckPicker::showRenameDeckAlert()
{
    if (!m_renameDeckAlert)
        m_renameDeckAlert = new DeckNameDialog(
            DeckNameDialog::renameDeck(), [this](const auto& name) { m_context.store.renameDeck(name); }, this);
    m_renameDeckAlert->ask(m_context.store.deckName());
}

double DeckPicker::nameWidth() const
{
    return m_name.isEmpty() ? 0 : QFontMetricsF(font()).horizontalAdvance(m_name) - kLetterSpacing;
}

QSize DeckPicker::sizeHint() const
{
    return {static_cast<int>(std::ceil(nameWidth())) + kChevronGap + kChevronWidth,
        static_cast<int>(std::ceil(QFontMetricsF(font()).height()))};
}

QSize DeckPicker::minimumSizeHint() const { return {kChevronGap + kChevronWidth, sizeHint().height()}; }

void DeckPicker::openMenu()
{
    m_decks.clear();
    const auto& store = m_context.store;
    for (std::int64_t i = 0; i < store.deckCount(); ++i) {
        const auto& deck = store.decks()[static_cast<std::size_t>(i)];
        m_decks.addAction(menuText(deck, i == store.activeDeckIndex(), m_decks.fontMetrics()), this,
            [this, i] { m_context.store.switchToDeck(i); });
    }
    m_decks.popup(mapToGlobal(QPoint(width() - m_decks.sizeHint().width(), height() + kMenuGap)));
    if (store.activeDeck())
        m_decks.setActiveAction(m_decks.actions().at(store.activeDeckIndex()));
}

void DeckPicker::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_commands.isEmpty()) {
        m_commands.addAction(QStringLiteral("New Deck…"), this, &DeckPicker::showNewDeckAlert);
        m_commands.addAction(QStringLiteral("Rename Deck…"), this, &DeckPicker::showRenameDeckAlert);
    }
    m_commands.actions().last()->setEnabled(m_context.store.activeDeck());
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    m_commands.popup(isByKey ? mapToGlobal(QPoint(0, height() + kMenuGap)) : event->globalPos());
}

bool DeckPicker::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip)
        setToolTip(width() < sizeHint().width() ? shownName(m_context.store.deckName()).toHtmlEscaped() : QString());
    return ButtonBase::event(event);
}

void DeckPicker::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto muted = toQColor(m_context.colors().muted());
    painter.setPen(muted);
    painter.setFont(font());
    const auto nameRect = rect().adjusted(0, 0, -kChevronWidth - kChevronGap, 0);
    const auto shown = width() < sizeHint().width()
        ? QFontMetricsF(font()).elidedText(m_name, Qt::ElideRight, nameRect.width())
        : m_name;
    painter.drawText(nameRect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip, shown);

    // Drawn here, because an icon of this size is thinner than the name beside it.
    constexpr double kStroke = 1.4;
    const QPointF centre(width() - kChevronWidth / 2.0, height() / 2.0);
    painter.setPen(QPen(muted, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const double reach = (kChevronWidth - kStroke) / 2;
    for (const double direction : {-1.0, 1.0}) {
        const QPointF tip = centre + QPointF(0, direction * 4.5);
        painter.drawPolyline(
            QPolygonF({tip + QPointF(-reach, -direction * reach), tip, tip + QPointF(reach, -direction * reach)}));
    }
}

} // namespace cuebright
