#include "ui/menu/StatusItem.h"

#include "platform/qt/TextConversion.h"
#include "platform/system/TrayAvailability.h"
#include "store/CardStore.h"
#include "ui/base/ModalSheets.h"
#include "ui/editor/MarkdownEditor.h"
#include "ui/panel/GlobalHotKey.h"
#include "ui/panel/NotesPanel.h"
#include "ui/panel/PanelController.h"
#include "ui/widgets/ApplicationIcon.h"

#include <QAction>
#include <QSystemTrayIcon>

#include <utility>

namespace cuebright {

namespace {

constexpr QSize kIconSize {18, 18};

/// The application icon in a single size, at up to three device pixels per pixel.
QIcon statusIcon()
{
    const auto icon = applicationIcon();
    QIcon small;
    for (const double scale : {1.0, 2.0, 3.0})
        small.addPixmap(icon.pixmap(kIconSize, scale));
    small.setIsMask(false);
    return small;
}

/// Shows the key only: the main menu handles it.
void showKey(QAction& action, const QKeySequence& key)
{
    action.setShortcut(key);
    action.setShortcutContext(Qt::WidgetShortcut);
}

} // namespace

StatusItem::StatusItem(const UiContext& context, PanelController& panelController, std::function<void()> quit)
    : m_context(context)
    , m_panelController(panelController)
    , m_quit(std::move(quit))
    , m_trayWatch(std::make_unique<TrayAvailability>([this] { appear(); }))
    , m_refresh(context.platform.mainQueue, [this] { rebuildStatusMenu(); })
{
    rebuildStatusMenu();
    QObject::connect(&m_menu, &QMenu::aboutToShow, &m_menu, [this] { rebuildStatusMenu(); });
    // Not every desktop emits aboutToShow.
    m_storeSubscription = context.store.willChange.subscribe([this](const Change& change) {
        using enum Change::Property;
        if (change.isOneOf({Decks, ActiveDeckIndex}))
            m_refresh.request();
    });
    m_panelSubscription = panelController.panelWindow().isOnScreenChanged.subscribe([this] { m_refresh.request(); });
}

StatusItem::~StatusItem() = default;

void StatusItem::appear()
{
    m_trayWatch.reset(); // from now on Qt follows trays that come and go
    m_icon = std::make_unique<QSystemTrayIcon>(statusIcon());
    m_icon->setToolTip(QStringLiteral("Cuebright"));
    m_icon->setContextMenu(&m_menu);
    m_shown.clear(); // actionText() differs where the desktop draws the menu
    rebuildStatusMenu();
    QObject::connect(m_icon.get(), &QSystemTrayIcon::activated, m_icon.get(), [this](auto reason) {
        if (reason == QSystemTrayIcon::Trigger)
            m_context.notifications.post(kTogglePanelNotification);
    });
    m_icon->show();
}

void StatusItem::rebuildStatusMenu()
{
    auto items = statusMenu(
        m_context.store, m_panelController.isPanelVisible() ? PanelVisibility::Visible : PanelVisibility::Hidden);
    if (items == m_shown)
        return;
    m_shown = std::move(items);
    m_menu.clear();
    for (const auto& item : m_shown)
        addItem(item);
}

QString StatusItem::actionText(const std::string& title)
{
    return m_menu.platformMenu() ? exportedMenuText(toOneLine(toQString(title))) : toActionText(title);
}

void StatusItem::addItem(const StatusMenuItem& item)
{
    using Kind = StatusMenuItem::Kind;
    const auto action = item.kind == Kind::Separator ? m_menu.addSeparator() : m_menu.addAction(actionText(item.title));
    switch (item.kind) {
    case Kind::TogglePanel:
        showKey(*action, kTogglePanelKeys);
        QObject::connect(
            action, &QAction::triggered, &m_menu, [this] { m_context.notifications.post(kTogglePanelNotification); });
        return;
    case Kind::Deck:
        action->setCheckable(true);
        action->setChecked(item.isChecked);
        QObject::connect(
            action, &QAction::triggered, &m_menu, [this, index = item.deckIndex] { switchDeckFromMenu(index); });
        return;
    case Kind::Quit:
        showKey(*action, Qt::CTRL | Qt::Key_Q);
        QObject::connect(action, &QAction::triggered, &m_menu, [this] { m_quit(); });
        return;
    case Kind::Separator:
        return;
    }
}

void StatusItem::switchDeckFromMenu(std::int64_t index)
{
    MarkdownEditor::commitComposition(); // the switch ends an open edit
    if (!isWaitingForAnswer(m_panelController.panelWindow()))
        m_context.store.switchToDeck(index);
    m_shown.clear(); // Qt has toggled the check mark
    m_refresh.request();
}

} // namespace cuebright
