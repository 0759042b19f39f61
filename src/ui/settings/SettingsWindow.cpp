#include "ui/settings/SettingsWindow.h"

#include "ui/settings/SettingsView.h"

#include <QMenuBar>
#include <QVBoxLayout>

#include <utility>

namespace cuebright {

namespace {

constexpr QSize kSize {460, 480};

} // namespace

SettingsWindow::SettingsWindow(const UiContext& context, std::function<void()> reset)
    : AuxiliaryWindow(context, QStringLiteral("Cuebright Settings"))
{
    const auto view = new SettingsView(context, std::move(reset), this);
    const auto column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(view);
    setFixedSize(kSize);
    view->setFocus();
}

QMenuBar& SettingsWindow::addMenuBar()
{
    const auto bar = new QMenuBar(this);
    layout()->setMenuBar(bar);
    return *bar;
}

/// The settings keep their size below a bar that is not in the desktop's own.
void SettingsWindow::settleSize()
{
    const auto bar = qobject_cast<QMenuBar*>(layout()->menuBar());
    setFixedSize(kSize.width(), kSize.height() + (bar && !bar->isNativeMenuBar() ? bar->sizeHint().height() : 0));
}

} // namespace cuebright
