#include "panel/PanelController.h"

#include "panel/CardContentView.h"
#include "panel/NotesPanel.h"
#include "panel/TextConversion.h"
#include "store/CardStore.h"

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

namespace cuebright {

namespace {

constexpr QSize kDefaultSize {720, 560};
constexpr QSize kMinimumSize {480, 360};
constexpr Seconds kStoreDebounce {0.2};

} // namespace

PanelController::PanelController(const PanelContext& context)
    : m_context(context)
    , m_panel(std::make_unique<NotesPanel>(context))
    , m_content(new CardContentView(context, m_panel.get()))
{
    m_panel->setMinimumSize(kMinimumSize);
    QRect frame({0, 0}, kDefaultSize);
    if (const auto screen = QGuiApplication::primaryScreen())
        frame.moveCenter(screen->availableGeometry().center());
    m_panel->setGeometry(frame);

    const auto layout = new QVBoxLayout(m_panel.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_content);
    m_content->setFocus();

    updateTitle();
    observeStore();
    context.store.setUndoManager(m_panel->undoManager());
}

PanelController::~PanelController() { m_titleUpdate.cancel(); }

void PanelController::showPanel()
{
    m_panel->show();
    m_panel->raise();
}

void PanelController::observeStore()
{
    m_storeSubscription = m_context.store.willChange.subscribe([this](const Change&) {
        m_titleUpdate.cancel();
        m_titleUpdate =
            m_context.platform.mainQueue.after(kStoreDebounce, m_weakTarget.guard([this] { updateTitle(); }));
    });
}

void PanelController::updateTitle()
{
    const auto title = toWindowTitle("Cuebright — " + m_context.store.deckName());
    if (m_panel->windowTitle() != title)
        m_panel->setWindowTitle(title);
}

} // namespace cuebright
