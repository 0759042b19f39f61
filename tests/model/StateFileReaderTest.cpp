#include "model/StateFile.h"

#include <gtest/gtest.h>

#include <map>

namespace cuebright {

namespace {

using Members = std::map<std::string, std::string>; ///< member name → value, as JSON

std::string object(const Members& members)
{
    std::string json;
    for (const auto& [name, value] : members)
        json.append(json.empty() ? "\"" : ",\"").append(name).append("\":").append(value);
    return "{" + json + "}";
}

const std::string kDeckId = "\"6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B21\"";
const std::string kCardId = "\"0C8E6A52-9B1F-4C7D-8E2A-5D3B7F1A6C90\"";
const std::string kCreated = "\"2026-11-16T01:21:19Z\"";
const std::string kUpdated = "\"2026-11-17T01:21:19Z\"";

const Members kCard = {{"content", "\"# One\""}, {"createdAt", kCreated}, {"id", kCardId}, {"updatedAt", kUpdated}};
const Members kDeck = {{"cards", "[" + object(kCard) + "]"}, {"createdAt", kCreated}, {"id", kDeckId},
    {"name", "\"Talk\""}, {"updatedAt", kUpdated}};
const Members kState = {{"activeCardIndex", "1"}, {"activeDeckId", kDeckId}, {"decks", "[" + object(kDeck) + "]"},
    {"fontSize", "20.5"}, {"opacity", "0.85"}};

/// A document in which one member of the first card, the first deck or the state has this value.
enum class Record { Card, Deck, State };
std::string documentWith(const std::string& name, const std::string& value, Record record = Record::State)
{
    auto card = kCard;
    auto deck = kDeck;
    auto state = kState;
    (record == Record::Card ? card : record == Record::Deck ? deck : state)[name] = value;
    if (record == Record::Card)
        deck["cards"] = "[" + object(card) + "]";
    if (record != Record::State)
        state["decks"] = "[" + object(deck) + "]";
    return object(state);
}

std::string documentWithout(const std::string& name, Record record)
{
    auto json = documentWith(name, "@", record);
    const auto member = "\"" + name + "\":@";
    const auto position = json.find(member);
    const bool isFirst = json[position - 1] == '{';
    return json.erase(isFirst ? position : position - 1, member.size() + 1);
}

std::string documentWithContent(const std::string& json)
{
    return documentWith("content", "\"" + json + "\"", Record::Card);
}

std::optional<std::string> contentOf(const std::string& json)
{
    const auto state = decodeState(json);
    return state ? std::optional(state->decks.at(0).cards.at(0).content) : std::nullopt;
}

const std::string kMark = "\xef\xbb\xbf"; ///< the byte order mark

std::string nested(std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); }

using Values = std::vector<const char*>;

const Values kNoText {"true", "1", "[]", "{}"};
const Values kNoList {"true", "1", "\"x\"", "{}", "[null]", "[1]", "[{}]", "[[]]"};
const Values kNoDate {"true", "1", "[]", "{}", "\"\"", "\"2026-02-30T01:21:19Z\"", "\" 2026-11-16T01:21:19Z\""};
const Values kNoUuid {"true", "1", "[]", "{}", "\"\"", "\"6B0F5C1E3D0A4E8B9D552F7A1C9E4B21\""};
const Values kNoNumber {"true", "\"17\"", "[]", "{}", "1e400", "-1e400", "18446744073709551616", "NaN", "Infinity",
    "017", "+17", "17.", ".5"};
const Values kNoIndex {"true", "\"1\"", "[]", "{}", "1.5", "1e-1", "9223372036854775808", "9223372036854775808.0",
    "1e300", "-1e19", "18446744073709551615", "-9223372036854775809"};
const Values kNoFrame {"false", "\"x\"", "{}", "[]", "[[1,2]]", "[[1,2],[3]]", "[[1],[2,3]]", "[[1,2],[3,4],[5,6]]",
    "[[1,2,3],[4,5]]", "[[1,2],[3,\"4\"]]", "[[1,2],[null,4]]", "[1,2,3,4]", "[[1,2],3]", "[[1,2],{}]",
    "{\"x\":1,\"y\":2,\"width\":3,\"height\":4}"};

const struct {
    Record record;
    const char* name;
    const Values& wrongValues;
    bool isOptional = false;
} kMembers[] = {
    {Record::Card, "content", kNoText},
    {Record::Card, "createdAt", kNoDate},
    {Record::Card, "id", kNoUuid},
    {Record::Card, "updatedAt", kNoDate},
    {Record::Deck, "cards", kNoList},
    {Record::Deck, "createdAt", kNoDate},
    {Record::Deck, "id", kNoUuid},
    {Record::Deck, "name", kNoText},
    {Record::Deck, "updatedAt", kNoDate},
    {Record::State, "activeCardIndex", kNoIndex},
    {Record::State, "activeDeckId", kNoUuid, true},
    {Record::State, "decks", kNoList},
    {Record::State, "fontSize", kNoNumber},
    {Record::State, "opacity", kNoNumber},
    {Record::State, "windowFrame", kNoFrame, true},
};

} // namespace

TEST(StateFileReader, AFileCutAnywhereIsRefused)
{
    const auto whole = object(kState);
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(decodeState(whole.substr(0, length))) << length;
}

TEST(StateFileReader, OnlyAnOptionalMemberMayBeMissingOrNull)
{
    for (const auto& member : kMembers) {
        const auto json = documentWith(member.name, "null", member.record);
        EXPECT_EQ(decodeState(json).has_value(), member.isOptional) << member.name;
        const auto without = documentWithout(member.name, member.record);
        EXPECT_EQ(decodeState(without).has_value(), member.isOptional) << member.name;
    }
    EXPECT_FALSE(decodeState(documentWith("activeDeckId", "null"))->activeDeckId);
}

TEST(StateFileReader, AMemberOfTheWrongKindIsRefused)
{
    for (const auto& member : kMembers)
        for (const auto value : member.wrongValues)
            EXPECT_FALSE(decodeState(documentWith(member.name, value, member.record))) << member.name << " : " << value;
}

TEST(StateFileReader, AWindowFrameIsTwoPairsOfNumbers)
{
    const auto state = decodeState(documentWith("windowFrame", "[[100, 200.5], [-420, 3e2]]"));
    ASSERT_TRUE(state);
    EXPECT_EQ(state->windowFrame, (Rect {100, 200.5, -420, 300}));
}

TEST(StateFileReader, ACardIndexIsAnyNumberThatIsExactlyA64BitInteger)
{
    constexpr auto kLowest = std::numeric_limits<std::int64_t>::min();
    const std::pair<const char*, std::int64_t> cases[] = {{"0", 0}, {"-0", 0}, {"-0.0", 0}, {"-3", -3}, {"1.0", 1},
        {"1e0", 1}, {"10E-1", 1}, {"9223372036854775807", 9223372036854775807}, {"-9223372036854775808", kLowest},
        {"-9223372036854775808.0", kLowest}, {"9007199254740993", 9007199254740993}};
    for (const auto& [json, expected] : cases) {
        const auto state = decodeState(documentWith("activeCardIndex", json));
        EXPECT_EQ(state ? std::optional(state->activeCardIndex) : std::nullopt, expected) << json;
    }
}

TEST(StateFileReader, OfDuplicateMembersTheFirstCountsHoweverItsNameIsSpelt)
{
    const auto with = [](std::size_t place, const char* member) {
        auto text = object(kState);
        text.insert(place, member);
        return text;
    };
    const auto end = object(kState).size() - 1;
    const auto state = decodeState(with(end, R"(,"activeCardIndex":"7","decks":null,"opacity":[])"));
    ASSERT_TRUE(state);
    EXPECT_EQ(state->activeCardIndex, 1);
    EXPECT_EQ(state->decks.size(), 1U);
    EXPECT_EQ(decodeState(with(1, R"("opa\u0063ity":0.5,)"))->opacity, 0.5);
    EXPECT_FALSE(decodeState(with(1, R"("activeCardIndex":"7",)")));
    EXPECT_FALSE(decodeState(with(end, R"(,"opacity":nul)")));
}

TEST(StateFileReader, EscapesInTextsAreResolved)
{
    const std::pair<const char*, std::string> cases[] = {
        {R"(\"\\\/\b\f\n\r\t)", "\"\\/\b\f\n\r\t"},
        {R"(\u0041\u00e9\u2192)", "Aé→"},
        {R"(\ud83d\ude00\uD83D\uDE00)", "😀😀"},
        {R"(a\u0000b)", std::string("a\0b", 3)},
        {R"(\udbff\udfff)", "\xf4\x8f\xbf\xbf"},
        {"/\x7f", "/\x7f"},
        {kMark.c_str(), kMark},
        {"", ""},
    };
    for (const auto& [json, expected] : cases)
        EXPECT_EQ(contentOf(documentWithContent(json)), expected) << json;
}

TEST(StateFileReader, BadEscapesControlCharactersAndBytesThatAreNotUtf8AreRefusedInTexts)
{
    for (const std::string bytes : {R"(\ud800)", R"(\udc00)", R"(\ud800\u0041)", R"(\ud800x\udc00)", R"(\udc00\ud800)",
             R"(\u00g0)", R"(\u12)", R"(\x41)", "\n", "\x1f", "\xc0\x80", "\xf0\x80\x80\xaf", // overlong
             "\xed\xa0\x80", "\xed\xa0\xbd\xed\xb8\x80", // surrogates
             "\xf4\x90\x80\x80", "\xe2\x80", "\x80", "\xff", "caf\xe9"}) {
        EXPECT_FALSE(decodeState(documentWithContent(bytes))) << testing::PrintToString(bytes);
        EXPECT_FALSE(decodeState(documentWith("zoom", "\"" + bytes + "\""))) << testing::PrintToString(bytes);
    }
}

TEST(StateFileReader, WhatDoesNotMatterIsAccepted)
{
    const auto whole = object(kState);
    const auto deck = object(kDeck);
    const std::string texts[] = {// unknown members
        documentWith("zoom", "[{\"deep\":[null,1.5e3,\"x\"]}]", Record::Card),
        documentWith("zoom", "[{}]", Record::Deck), documentWith("\\u0000", nested(1000)),
        // identifiers that repeat or name no deck
        documentWith("decks", "[" + deck + "," + deck + "]"), documentWith("activeDeckId", kCardId),
        // numbers as large as a double
        documentWith("fontSize", "1e308"), documentWith("fontSize", "18446744073709551615"),
        " \t\r\n" + whole + "\r\n\t ", kMark + whole};
    for (const auto& text : texts)
        EXPECT_TRUE(decodeState(text)) << text.substr(0, 400);
}

TEST(StateFileReader, WhatIsNoSingleObjectOfGoodJsonIsRefused)
{
    const auto whole = object(kState);
    auto badCard = kCard;
    badCard.erase("updatedAt");
    std::vector<std::string> texts {"", " \n", std::string(64, '\0'), "null", "[]", "1", "\"{}\"", "{}",
        "[" + whole + "]", whole + whole, whole + "x", "// notes\n" + whole, "\v" + whole, whole + "\xc2\xa0",
        whole + std::string(1, '\0'), kMark, kMark + kMark + whole, std::string(2'000'000, '['),
        documentWith("zoom", nested(1025)),
        documentWith("cards", "[" + object(kCard) + "," + object(badCard) + "]", Record::Deck)};
    for (const auto value : {"nul", "[1,]", "{\"a\"}", "01", "1e400", "'a'"})
        texts.push_back(documentWith("zoom", value));
    std::string utf16 = "\xff\xfe";
    for (const char c : whole)
        utf16 += {c, '\0'};
    texts.push_back(utf16);
    for (const auto& text : texts)
        EXPECT_FALSE(decodeState(text)) << text.substr(0, 400);
}

} // namespace cuebright
