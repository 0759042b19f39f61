#include "ui/accessibility/MenuAccessibility.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QMenu>

namespace cuebright {

namespace {

constexpr const char* kMark = "offersOpenMenus";

class MenuOwnerInterface final : public QAccessibleWidget {
public:
    explicit MenuOwnerInterface(QWidget* owner)
        : QAccessibleWidget(owner, button(owner) ? QAccessible::Button : QAccessible::Client)
    {
    }

    QAccessible::State state() const override
    {
        auto state = QAccessibleWidget::state();
        state.hasPopup = button(widget()) != nullptr;
        return state;
    }
    QStringList actionNames() const override
    {
        const bool canBePressed = button(widget()) && widget()->isEnabled();
        return (canBePressed ? QStringList {pressAction()} : QStringList()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override
    {
        if (action == pressAction() && button(widget()))
            return button(widget())->click();
        QAccessibleWidget::doAction(action);
    }

    int childCount() const override { return QAccessibleWidget::childCount() + static_cast<int>(openMenus().size()); }
    QAccessibleInterface* child(int index) const override
    {
        const int menu = index - QAccessibleWidget::childCount();
        if (menu < 0)
            return QAccessibleWidget::child(index);
        const auto menus = openMenus();
        return menu < menus.size() ? QAccessible::queryAccessibleInterface(menus.at(menu)) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto menus = openMenus();
        for (int i = 0; i < menus.size(); ++i) {
            if (child && child->object() == menus.at(i))
                return QAccessibleWidget::childCount() + i;
        }
        return QAccessibleWidget::indexOfChild(child);
    }

private:
    static QAbstractButton* button(QWidget* widget) { return qobject_cast<QAbstractButton*>(widget); }

    QList<QMenu*> openMenus() const
    {
        auto menus = widget()->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly);
        menus.removeIf([](const QMenu* menu) { return !menu->isVisible(); });
        return menus;
    }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    return object->property(kMark).toBool() ? new MenuOwnerInterface(static_cast<QWidget*>(object)) : nullptr;
}

} // namespace

void offerOpenMenusToScreenReaders(QWidget& owner)
{
    QAccessible::installFactory(makeInterface);
    owner.setProperty(kMark, true);
    // An interface that exists already would stay in use.
    if (const auto former = QAccessible::queryAccessibleInterface(&owner))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(former));
    // An item that is triggered through its accessible action leaves the menu open.
    for (const auto menu : owner.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly))
        QObject::connect(menu, &QMenu::triggered, menu, &QWidget::close);
}

} // namespace cuebright
