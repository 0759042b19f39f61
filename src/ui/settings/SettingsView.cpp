#include "ui/settings/SettingsView.h"

#include "platform/Accessibility.h"
#include "platform/qt/TextConversion.h"
#include "ui/base/Fonts.h"
#include "ui/base/ShareStatus.h"
#include "ui/settings/About.h"
#include "ui/settings/AppearanceTab.h"
#include "ui/settings/GeneralTab.h"
#include "ui/settings/SettingsSection.h"
#include "ui/widgets/Label.h"
#include "ui/widgets/SymbolIcon.h"

#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <utility>

namespace cuebright {

namespace {

constexpr int kMargin = 20;
constexpr int kAdvicePadding = 10;

} // namespace

SettingsView::SettingsView(const UiContext& context, std::function<void()> reset, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_tabs(new QTabWidget(this))
    , m_shareAdvice(new Label(context, systemFont(kSettingsNoteSize), ColorRole::Text, Label::WhenNarrow::Wrap, this))
{
    setFont(systemFont(kSettingsTextSize));
    m_tabs->setDocumentMode(true);
    m_tabs->tabBar()->setExpanding(false);
    m_tabs->addTab(
        new GeneralTab(context, std::move(reset), m_tabs), symbolIcon(Icon::Gear), QStringLiteral("General"));
    m_tabs->addTab(new AppearanceTab(context, m_tabs), symbolIcon(Icon::Brush), QStringLiteral("Appearance"));
    m_tabs->addTab(new AboutTab(context, m_tabs), symbolIcon(Icon::InfoCircle), QStringLiteral("About"));
    addPagingKeys();
    setFocusProxy(m_tabs->tabBar());

    const auto column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_tabs, 1);
    const auto advice = new QVBoxLayout;
    advice->setContentsMargins(kMargin, kAdvicePadding, kMargin, kAdvicePadding);
    advice->addWidget(m_shareAdvice);
    column->addLayout(advice);

    m_accessibilitySubscription = context.platform.accessibility.changed.subscribe([this] {
        for (const auto widget : findChildren<QWidget*>()) // update() does not repaint opaque children
            widget->update();
    });
    m_exclusionSubscription = context.desktop.captureExclusion.changed.subscribe([this] { updateShareAdvice(); });
    updateShareAdvice();
}

SettingsView::~SettingsView() = default;

/// Qt itself switches tabs with Ctrl+Tab only.
void SettingsView::addPagingKeys()
{
    const auto add = [this](Qt::Key key, int step) {
        const auto shortcut = new QShortcut(Qt::CTRL | key, this);
        connect(shortcut, &QShortcut::activated, this, [this, step] {
            m_tabs->setCurrentIndex((m_tabs->currentIndex() + step + m_tabs->count()) % m_tabs->count());
        });
    };
    add(Qt::Key_PageDown, 1);
    add(Qt::Key_PageUp, -1);
}

void SettingsView::updateShareAdvice()
{
    const auto advice = shareAdvice(m_context.desktop.captureExclusion);
    m_shareAdvice->setText(toQString(advice.value_or("")));
    m_shareAdvice->setVisible(advice.has_value());
}

} // namespace cuebright
