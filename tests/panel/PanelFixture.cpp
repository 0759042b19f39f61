#include "panel/PanelFixture.h"

#include "model/StateFile.h"

#include <QAbstractButton>

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

void PanelFixture::setCards(const std::vector<std::string>& contents)
{
    Deck deck {fake.uuids.makeUuid(), "Talk", {}, fake.clock.now(), fake.clock.now()};
    for (const auto& content : contents)
        deck.cards.push_back({fake.uuids.makeUuid(), content, fake.clock.now(), fake.clock.now()});
    const std::vector<Deck> decks {deck};
    const auto json = encodeState({decks, deck.id, 0, 1, 17});
    fake.fileSystem.files[store.stateUrl().string()] = std::get<std::string>(json);
    store.loadFromDisk();
    refresh();
}

QWidget* PanelFixture::find(QWidget& root, const QString& name)
{
    const auto widget = search(root, name);
    EXPECT_TRUE(widget) << "nothing is called " << name.toStdString();
    return widget;
}

bool PanelFixture::isShown(QWidget& root, const QString& name) { return search(root, name) != nullptr; }

void PanelFixture::press(QWidget& root, const QString& name)
{
    const auto widget = find(root, name);
    if (!widget)
        return;
    const auto actions = QAccessible::queryAccessibleInterface(widget)->actionInterface();
    ASSERT_TRUE(actions && actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    // The action itself shows the press for a tenth of a second first.
    static_cast<QAbstractButton*>(widget)->click();
}

} // namespace cuebright::test
