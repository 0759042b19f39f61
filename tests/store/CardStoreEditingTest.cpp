#include "store/CardStoreFixture.h"

namespace cuebright::test {

namespace {

class CardStoreEditing : public CardStoreFixture { };

TEST_F(CardStoreEditing, EditsHaveTheirEffects)
{
    const auto type = [](CardStore& s) { s.setEditText("typed"); };
    expectEffects({
        {"Talk*[a|b*]", &CardStore::beginEditing, "Talk*[a|b*] editing 'b'", 0},
        {"Talk*[a*] editing 'a'", type, "Talk*[a*] editing 'typed'", 0},
        {"Talk*[a*] editing 'b'", &CardStore::saveEdit, "Talk*[b*] feedback 'Saved'", 1},
        {"Talk*[a*] editing 'a'", &CardStore::saveEdit, "Talk*[a*]", 1},
        {"Talk*[a*] editing 'b'", &CardStore::cancelEdit, "Talk*[a*] feedback 'Discarded'", 0},
        {"Talk*[a*] editing 'a'", &CardStore::cancelEdit, "Talk*[a*]", 0},
        {"Talk*[a] card -1 editing 'b'", &CardStore::cancelEdit, "Talk*[a] card -1 feedback 'Discarded'", 0},
    });
}

TEST_F(CardStoreEditing, ImpossibleEditsDoNothing)
{
    expectNothing({
        {"Talk*[a|b] card -1", &CardStore::beginEditing},
        {"Talk*[] card 0", &CardStore::beginEditing},
        {"Talk*[a*] editing 'typed'", &CardStore::beginEditing},
        {"Talk*[a*]", &CardStore::saveEdit},
        {"Talk*[a*]", &CardStore::cancelEdit},
        {"Talk*[a|b] card -1 editing 'typed'", &CardStore::saveEdit},
    });
}

TEST_F(CardStoreEditing, BlankCardsOpenWithAHeadingPrefixWhichCountsAsAChange)
{
    const std::pair<std::string, std::string> cases[] = {
        {"", "# "}, {"  \n\t\r\n ", "# "}, {"\u00a0\u2003\u3000\u2028\u2029\u0085", "# "}, {" \nx\n", " \nx\n"},
        {"\u200b", "\u200b"}, // zero width space is no white space
    };
    for (const auto& [content, editText] : cases) {
        const auto before = "Talk*[" + content + "*]";
        open(before);
        store->beginEditing();
        EXPECT_EQ(describe(*store), before + " editing '" + editText + "'");
        store->cancelEdit();
        EXPECT_EQ(describe(*store), before + (editText == "# " ? " feedback 'Discarded'" : ""));
        EXPECT_EQ(store->editText(), content);
    }
}

TEST_F(CardStoreEditing, TextsAreStoredAsTyped)
{
    for (const std::string text : {"", " ", "Hello \n\n", "\tHello", "e\u0301"}) {
        open("Talk*[\u00e9*] editing '" + text + "'");
        store->saveEdit();
        EXPECT_EQ(describe(*store), "Talk*[" + text + "*] feedback 'Saved'");
    }
}

TEST_F(CardStoreEditing, ObserversAreNotifiedBeforeTheValueIsStored)
{
    open("Talk*[a*] editing 'b'");
    std::string seen;
    const auto subscription = store->willChange.subscribe([&](const Change&) {
        if (seen.empty())
            seen = describe(*store);
    });
    store->saveEdit();
    EXPECT_EQ(seen, "Talk*[a*] editing 'b'");
}

} // namespace

} // namespace cuebright::test
