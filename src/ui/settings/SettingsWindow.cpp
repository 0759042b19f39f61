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
    view->setFixedSize(kSize);
    view->setFocus();
    const auto column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(view);
}

QMenuBar& SettingsWindow::addMenuBar()
{
    const auto bar = new QMenuBar(this);
    layout()->setMenuBar(bar);
    return *bar;
}

} // namespace cuebright
