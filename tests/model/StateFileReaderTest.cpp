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

/// A whole document in which one member, of the first card, the first deck or the state itself, has this value.
enum class Record { Card, Deck, State };
std::string documentWith(Record record, const std::string& name, const std::string& value)
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

std::string documentWith(const std::string& name, const std::string& value)
{
    return documentWith(Record::State, name, value);
}

std::string documentWithout(Record record, const std::string& name)
{
    const auto marked = documentWith(record, name, "@");
    const auto member = "\"" + name + "\":@";
    auto json = marked;
    const auto position = json.find(member);
    const bool isFirst = json[position - 1] == '{';
    json.erase(isFirst ? position : position - 1, member.size() + 1);
    return json;
}

std::string documentWithContent(const std::string& json)
{
    return documentWith(Record::Card, "content", "\"" + json + "\"");
}

std::optional<std::string> contentOf(const std::string& json)
{
    const auto state = decodeState(json);
    return state ? std::optional(state->decks.at(0).cards.at(0).content) : std::nullopt;
}

std::string repeated(std::string_view text, std::size_t count)
{
    std::string result;
    for (std::size_t i = 0; i < count; ++i)
        result += text;
    return result;
}

const struct {
    Record record;
    const char* name;
    std::vector<std::string> wrongValues;
} kRequiredMembers[] = {
    {Record::Card, "content", {"null", "true", "1", "[]", "{}"}},
    {Record::Card, "createdAt", {"null", "true", "1", "\"x\"", "[]", "{}"}},
    {Record::Card, "id", {"null", "true", "1", "\"x\"", "[]", "{}"}},
    {Record::Card, "updatedAt", {"null", "true", "1", "\"x\"", "[]", "{}"}},
    {Record::Deck, "cards", {"null", "true", "1", "\"x\"", "{}", "[null]", "[1]", "[{}]", "[[]]"}},
    {Record::Deck, "createdAt", {"null", "true", "1", "\"x\"", "[]", "{}"}},
    {Record::Deck, "id", {"null", "true", "1", "\"x\"", "[]", "{}"}},
    {Record::Deck, "name", {"null", "true", "1", "[]", "{}"}},
    {Record::Deck, "updatedAt", {"null", "true", "1", "\"x\"", "[]", "{}"}},
    {Record::State, "activeCardIndex", {"null", "true", "\"1\"", "[]", "{}", "1.5"}},
    {Record::State, "decks", {"null", "true", "1", "\"x\"", "{}", "[null]", "[1]", "[{}]", "[[]]"}},
    {Record::State, "fontSize", {"null", "true", "\"17\"", "[]", "{}"}},
    {Record::State, "opacity", {"null", "true", "\"1\"", "[]", "{}"}},
};

} // namespace

TEST(StateFileReader, AWholeDocumentIsReadMemberByMember)
{
    const auto state = decodeState(object(kState));
    ASSERT_TRUE(state);
    EXPECT_EQ(state->activeCardIndex, 1);
    EXPECT_EQ(state->activeDeckId, Uuid::parse("6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B21"));
    EXPECT_EQ(state->fontSize, 20.5);
    EXPECT_EQ(state->opacity, 0.85);
    EXPECT_FALSE(state->windowFrame);
    ASSERT_EQ(state->decks.size(), 1U);
    const auto& deck = state->decks.front();
    EXPECT_EQ(deck.id.text(), "6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B21");
    EXPECT_EQ(deck.name, "Talk");
    EXPECT_EQ(iso8601(deck.createdAt), "2026-11-16T01:21:19Z");
    EXPECT_EQ(iso8601(deck.updatedAt), "2026-11-17T01:21:19Z");
    ASSERT_EQ(deck.cards.size(), 1U);
    const auto& card = deck.cards.front();
    EXPECT_EQ(card.id.text(), "0C8E6A52-9B1F-4C7D-8E2A-5D3B7F1A6C90");
    EXPECT_EQ(card.content, "# One");
    EXPECT_EQ(iso8601(card.createdAt), "2026-11-16T01:21:19Z");
    EXPECT_EQ(iso8601(card.updatedAt), "2026-11-17T01:21:19Z");
}

TEST(StateFileReader, AFileCutAnywhereIsRefused)
{
    const auto whole = object(kState);
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(decodeState(whole.substr(0, length))) << length;
}

TEST(StateFileReader, AMissingMemberIsRefused)
{
    for (const auto& member : kRequiredMembers)
        EXPECT_FALSE(decodeState(documentWithout(member.record, member.name))) << member.name;
}

TEST(StateFileReader, AMemberOfTheWrongKindIsRefused)
{
    for (const auto& member : kRequiredMembers) {
        for (const auto& value : member.wrongValues)
            EXPECT_FALSE(decodeState(documentWith(member.record, member.name, value))) << member.name << " : " << value;
    }
}

TEST(StateFileReader, OneBadCardAmongGoodOnesIsRefused)
{
    auto bad = kCard;
    bad.erase("updatedAt");
    const auto good = object(kCard);
    EXPECT_TRUE(decodeState(documentWith(Record::Deck, "cards", "[" + good + "," + good + "]")));
    EXPECT_FALSE(decodeState(documentWith(Record::Deck, "cards", "[" + good + "," + object(bad) + "]")));
}

TEST(StateFileReader, OptionalMembersMayBeNullOrMissing)
{
    for (const auto& json : {documentWith("activeDeckId", "null"), documentWithout(Record::State, "activeDeckId")}) {
        const auto state = decodeState(json);
        ASSERT_TRUE(state) << json;
        EXPECT_FALSE(state->activeDeckId);
    }
    EXPECT_TRUE(decodeState(documentWith("windowFrame", "null")));
}

TEST(StateFileReader, AnOptionalMemberOfTheWrongKindIsRefused)
{
    for (const auto value : {"true", "1", "\"\"", "\"x\"", "[]", "{}"})
        EXPECT_FALSE(decodeState(documentWith("activeDeckId", value))) << value;
}

TEST(StateFileReader, AWindowFrameIsTwoPairsOfNumbers)
{
    const auto state = decodeState(documentWith("windowFrame", "[[100, 200.5], [-420, 3e2]]"));
    ASSERT_TRUE(state);
    EXPECT_EQ(state->windowFrame, (Rect {100, 200.5, -420, 300}));
}

TEST(StateFileReader, AnyOtherWindowFrameIsRefused)
{
    for (const auto value : {"[]", "[[1,2]]", "[[1,2],[3]]", "[[1],[2,3]]", "[[1,2],[3,4],[5,6]]", "[[1,2,3],[4,5]]",
             "[[1,2],[3,\"4\"]]", "[[1,2],[null,4]]", "[1,2,3,4]", "[[1,2],3]", "[[1,2],{}]", "{}", "\"x\"", "false",
             "{\"x\":1,\"y\":2,\"width\":3,\"height\":4}"})
        EXPECT_FALSE(decodeState(documentWith("windowFrame", value))) << value;
}

TEST(StateFileReader, ACardIndexIsAnyNumberThatIsExactlyA64BitInteger)
{
    const struct {
        const char* json;
        std::int64_t expected;
    } kCases[] = {
        {"0", 0},
        {"-0", 0},
        {"-0.0", 0},
        {"-3", -3},
        {"99", 99},
        {"1.0", 1},
        {"1e0", 1},
        {"10E-1", 1},
        {"9223372036854775807", 9223372036854775807},
        {"-9223372036854775808", std::numeric_limits<std::int64_t>::min()},
        {"-9223372036854775808.0", std::numeric_limits<std::int64_t>::min()},
        {"9007199254740993", 9007199254740993},
    };
    for (const auto& c : kCases) {
        const auto state = decodeState(documentWith("activeCardIndex", c.json));
        EXPECT_EQ(state ? std::optional(state->activeCardIndex) : std::nullopt, c.expected) << c.json;
    }
}

TEST(StateFileReader, AnyOtherCardIndexIsRefused)
{
    for (const auto value : {"\"1\"", "1.5", "1e-1", "9223372036854775808", "9223372036854775808.0", "1e300", "-1e19",
             "18446744073709551615", "-9223372036854775809"})
        EXPECT_FALSE(decodeState(documentWith("activeCardIndex", value))) << value;
}

TEST(StateFileReader, NumbersThatFitNoDoubleAreRefused)
{
    EXPECT_TRUE(decodeState(documentWith("fontSize", "1e308")));
    EXPECT_TRUE(decodeState(documentWith("fontSize", "18446744073709551615")));
    for (const auto value : {"1e400", "-1e400", "18446744073709551616", "NaN", "Infinity", "017", "+17", "17.", ".5"})
        EXPECT_FALSE(decodeState(documentWith("fontSize", value))) << value;
}

TEST(StateFileReader, BadIdentifiersAreRefused)
{
    for (const auto value : {"", "6B0F5C1E3D0A4E8B9D552F7A1C9E4B21", "{6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B21}",
             "6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B2", "6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B2G",
             " 6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B21"}) {
        const auto json = "\"" + std::string(value) + "\"";
        EXPECT_FALSE(decodeState(documentWith(Record::Card, "id", json))) << value;
        EXPECT_FALSE(decodeState(documentWith(Record::Deck, "id", json))) << value;
        EXPECT_FALSE(decodeState(documentWith("activeDeckId", json))) << value;
    }
}

TEST(StateFileReader, BadDatesAreRefused)
{
    for (const auto value : {"", "2026-11-16T01:21:19.5Z", "2026-11-16T01:21:19+01:00", "2026-11-16T01:21:19z",
             "2026-02-30T01:21:19Z", "2026-11-16T01:21:60Z", "2026-11-16T24:00:00Z", "2026-11-16 01:21:19Z",
             " 2026-11-16T01:21:19Z", "2026-11-16"}) {
        const auto json = "\"" + std::string(value) + "\"";
        EXPECT_FALSE(decodeState(documentWith(Record::Card, "createdAt", json))) << value;
        EXPECT_FALSE(decodeState(documentWith(Record::Card, "updatedAt", json))) << value;
        EXPECT_FALSE(decodeState(documentWith(Record::Deck, "createdAt", json))) << value;
        EXPECT_FALSE(decodeState(documentWith(Record::Deck, "updatedAt", json))) << value;
    }
}

TEST(StateFileReader, IdentifiersMayRepeatAndNameNoDeck)
{
    const auto deck = object(kDeck);
    const auto twins = decodeState(documentWith("decks", "[" + deck + "," + deck + "]"));
    ASSERT_TRUE(twins);
    EXPECT_EQ(twins->decks.size(), 2U);
    EXPECT_EQ(twins->decks[0].id, twins->decks[1].id);
    EXPECT_TRUE(decodeState(documentWith("activeDeckId", kCardId)));
}

TEST(StateFileReader, UnknownMembersAreIgnored)
{
    for (const auto record : {Record::Card, Record::Deck, Record::State})
        EXPECT_TRUE(decodeState(documentWith(record, "zoom", "[{\"deep\":[null,1.5e3,\"x\"]}]")));
    EXPECT_TRUE(decodeState(documentWith("\\u0000", "1")));
}

TEST(StateFileReader, BadJsonInAnUnknownMemberIsRefused)
{
    for (const auto value : {"nul", "[1,]", "{\"a\"}", "\"\\x\"", "01", "1e400", "\"\\ud800\"", "'a'"})
        EXPECT_FALSE(decodeState(documentWith("zoom", value))) << value;
}

TEST(StateFileReader, OfDuplicateMembersTheFirstCounts)
{
    auto json = object(kState);
    json.insert(json.size() - 1, R"(,"activeCardIndex":"7","decks":null,"opacity":[])");
    const auto state = decodeState(json);
    ASSERT_TRUE(state);
    EXPECT_EQ(state->activeCardIndex, 1);
    EXPECT_EQ(state->decks.size(), 1U);

    json = object(kState);
    json.insert(1, R"("activeCardIndex":"7",)");
    EXPECT_FALSE(decodeState(json));

    json = object(kState);
    json.insert(json.size() - 1, R"(,"opacity":nul)");
    EXPECT_FALSE(decodeState(json));
}

TEST(StateFileReader, AnEscapedMemberNameIsTheSameName)
{
    auto json = documentWithout(Record::State, "opacity");
    json.insert(1, R"("opa\u0063ity":0.5,)");
    const auto state = decodeState(json);
    ASSERT_TRUE(state);
    EXPECT_EQ(state->opacity, 0.5);
}

TEST(StateFileReader, EscapesInTextsAreResolved)
{
    const struct {
        const char* json;
        std::string expected;
    } kCases[] = {
        {R"(\"\\\/\b\f\n\r\t)", "\"\\/\b\f\n\r\t"},
        {R"(\u0041\u00e9\u2192)", "Aé→"},
        {R"(\ud83d\ude00)", "😀"},
        {R"(\uD83D\uDE00)", "😀"},
        {R"(a\u0000b)", std::string("a\0b", 3)},
        {R"(\udbff\udfff)", "\xf4\x8f\xbf\xbf"},
        {"/", "/"},
        {"\x7f", "\x7f"},
        {"", ""},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(contentOf(documentWithContent(c.json)), c.expected) << c.json;
}

TEST(StateFileReader, BadEscapesAndControlCharactersInTextsAreRefused)
{
    for (const auto json :
        {R"(\ud800)", R"(\udc00)", R"(\ud800\u0041)", R"(\ud800\ud800)", R"(\ud800\n)", R"(\ud800x\udc00)",
            R"(\udc00\ud800)", R"(\u00g0)", R"(\u12)", R"(\x41)", R"(\a)", R"(\U0041)", "\n", "\t", "\x01", "\x1f"})
        EXPECT_FALSE(decodeState(documentWithContent(json))) << testing::PrintToString(json);
}

TEST(StateFileReader, TextsThatAreNotUtf8AreRefused)
{
    const struct {
        const char* name;
        const char* bytes;
    } kCases[] = {
        {"overlong, two bytes", "\xc0\x80"},
        {"overlong, three bytes", "\xe0\x80\xaf"},
        {"overlong, four bytes", "\xf0\x80\x80\xaf"},
        {"high surrogate", "\xed\xa0\x80"},
        {"low surrogate", "\xed\xbf\xbf"},
        {"pair of surrogates", "\xed\xa0\xbd\xed\xb8\x80"},
        {"beyond the last code point", "\xf4\x90\x80\x80"},
        {"cut sequence", "\xe2\x80"},
        {"lone continuation byte", "\x80"},
        {"no lead byte", "\xff"},
        {"Latin-1", "caf\xe9"},
    };
    for (const auto& c : kCases) {
        EXPECT_FALSE(decodeState(documentWithContent(c.bytes))) << c.name;
        EXPECT_FALSE(decodeState(documentWith("zoom", "\"" + std::string(c.bytes) + "\""))) << c.name;
    }
}

TEST(StateFileReader, OneByteOrderMarkIsSkipped)
{
    const std::string mark = "\xef\xbb\xbf";
    EXPECT_TRUE(decodeState(mark + object(kState)));
    EXPECT_FALSE(decodeState(mark + mark + object(kState)));
    EXPECT_FALSE(decodeState(mark));
    EXPECT_EQ(contentOf(documentWithContent(mark)), mark);
}

TEST(StateFileReader, EveryJsonWhiteSpaceIsAccepted)
{
    const auto json = object(kState);
    EXPECT_TRUE(decodeState(" \t\r\n" + json + "\r\n\t "));
    EXPECT_FALSE(decodeState("\v" + json));
    EXPECT_FALSE(decodeState(json + "\xc2\xa0"));
    EXPECT_FALSE(decodeState(json + std::string(1, '\0')));
}

TEST(StateFileReader, WhatIsNoSingleObjectIsRefused)
{
    const auto json = object(kState);
    const auto utf16 = [&] {
        std::string text = "\xff\xfe";
        for (const char c : json)
            text += {c, '\0'};
        return text;
    }();
    for (const auto& text : {std::string(), std::string(" \n"), std::string(64, '\0'), std::string("null"),
             std::string("[]"), std::string("1"), std::string("\"{}\""), std::string("{}"), "[" + json + "]",
             json + json, json + "x", "// notes\n" + json, utf16})
        EXPECT_FALSE(decodeState(text)) << text.substr(0, 40);
}

TEST(StateFileReader, BinaryNoiseIsRefused)
{
    std::string noise(100'000, '\0');
    std::uint32_t state = 1;
    for (auto& byte : noise) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<char>(state >> 24);
    }
    EXPECT_FALSE(decodeState(noise));
    EXPECT_FALSE(decodeState("{" + noise));
}

TEST(StateFileReader, NestingBeyondALimitIsRefused)
{
    EXPECT_TRUE(decodeState(documentWith("zoom", repeated("[", 1000) + repeated("]", 1000))));
    EXPECT_FALSE(decodeState(documentWith("zoom", repeated("[", 1025) + repeated("]", 1025))));
    EXPECT_FALSE(decodeState(repeated("[", 2'000'000)));
    EXPECT_FALSE(decodeState(repeated("{\"a\":", 400'000)));
}

TEST(StateFileReader, ATextWithSpareCapacityReadsTheSame)
{
    auto json = object(kState);
    json.shrink_to_fit();
    const auto tight = decodeState(json);
    json.reserve(json.size() + kDecodePadding);
    const auto spare = decodeState(json);
    ASSERT_TRUE(tight);
    ASSERT_TRUE(spare);
    EXPECT_EQ(spare->decks.at(0).cards.at(0).content, tight->decks.at(0).cards.at(0).content);
}

} // namespace cuebright
