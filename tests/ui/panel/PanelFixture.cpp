#include "ui/panel/PanelFixture.h"

#include "model/StateFile.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

namespace cuebright::test {

namespace {

QWidget* search(QWidget& root, const QString& name)
{
    for (const auto widget : root.findChildren<QWidget*>()) {
        const auto interface = QAccessible::queryAccessibleInterface(widget);
        if (widget->isVisibleTo(&root) && interface && interface->text(QAccessible::Name) == name)
            return widget;
    }
    return nullptr;
}

} // namespace

void PanelFixture::setCards(const std::vector<std::string>& contents, std::int64_t activeCard)
{
    Deck deck {fake.uuids.makeUuid(), "Talk", {}, fake.clock.now(), fake.clock.now()};
    for (const auto& content : contents)
        deck.cards.push_back({fake.uuids.makeUuid(), content, fake.clock.now(), fake.clock.now()});
    const std::vector<Deck> decks {deck};
    const auto json = encodeState({decks, deck.id, activeCard, 1, 17});
    fake.fileSystem.files[store.stateURL().string()] = std::get<std::string>(json);
    store.loadFromDisk();
    refresh();
}

QWidget* PanelFixture::find(QWidget& root, QAnyStringView name)
{
    const auto widget = search(root, name.toString());
    EXPECT_TRUE(widget) << "nothing is called " << name.toString().toStdString();
    return widget;
}

bool PanelFixture::isShown(QWidget& root, QAnyStringView name) { return search(root, name.toString()) != nullptr; }

void PanelFixture::press(QWidget& root, QAnyStringView name)
{
    const auto widget = find(root, name);
    if (!widget)
        return;
    const auto actions = QAccessible::queryAccessibleInterface(widget)->actionInterface();
    ASSERT_TRUE(actions && actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    // The accessible action would animate the press for 0.1 s.
    static_cast<QAbstractButton*>(widget)->click();
}

void PanelFixture::activate(QWidget& window)
{
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

QMenu* PanelFixture::openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

QString PanelFixture::textsOf(const QMenu& menu)
{
    QStringList texts;
    for (const auto action : menu.actions())
        texts.append(action->text());
    return texts.join(u'|');
}

} // namespace cuebright::test
