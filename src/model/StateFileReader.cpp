#include "model/StateFile.h"

#include <simdjson.h>

#include <array>
#include <cmath>
#include <utility>

namespace cuebright {

namespace {

namespace dom = simdjson::dom;

static_assert(kDecodePadding >= simdjson::SIMDJSON_PADDING);

using Value = std::optional<dom::element>; ///< absent where the member is missing

/// The first member of each name, in one pass over the object; all absent if `value` is not an object.
template <std::size_t count>
std::array<Value, count> membersOf(const Value& value, const std::array<std::string_view, count>& names)
{
    std::array<Value, count> members;
    dom::object object;
    if (!value || value->get(object) != simdjson::SUCCESS)
        return members;
    for (const auto field : object) {
        for (std::size_t i = 0; i < count; ++i) {
            if (field.key != names[i])
                continue;
            if (!members[i])
                members[i] = field.value;
            break;
        }
    }
    return members;
}

template <typename T> std::optional<T> readAs(const Value& value)
{
    T result;
    if (!value || value->get(result) != simdjson::SUCCESS)
        return std::nullopt;
    return result;
}

bool isAbsent(const Value& value) { return !value || value->is_null(); }

std::optional<Uuid> readUuid(const Value& value)
{
    const auto text = readAs<std::string_view>(value);
    return text ? Uuid::parse(*text) : std::nullopt;
}

std::optional<Instant> readDate(const Value& value)
{
    const auto text = readAs<std::string_view>(value);
    return text ? parseIso8601(*text) : std::nullopt;
}

/// A number without a fraction, however it is written: 3, 3.0 or 3e0.
std::optional<std::int64_t> readInteger(const Value& value)
{
    if (const auto integer = readAs<std::int64_t>(value))
        return integer;
    const auto number = value && value->is_double() ? readAs<double>(value) : std::nullopt;
    constexpr double kLimit = 9223372036854775808.0; // 2^63, exact
    if (!number || *number < -kLimit || *number >= kLimit || std::trunc(*number) != *number)
        return std::nullopt;
    return static_cast<std::int64_t>(*number);
}

std::optional<std::pair<double, double>> readPair(dom::element value)
{
    const auto array = readAs<dom::array>(value);
    if (!array || array->size() != 2)
        return std::nullopt;
    const auto first = readAs<double>(*array->begin());
    const auto second = readAs<double>(*++array->begin());
    if (!first || !second)
        return std::nullopt;
    return std::pair(*first, *second);
}

/// Two pairs: origin and size.
std::optional<Rect> readRect(const Value& value)
{
    const auto array = readAs<dom::array>(value);
    if (!array || array->size() != 2)
        return std::nullopt;
    const auto origin = readPair(*array->begin());
    const auto size = readPair(*++array->begin());
    if (!origin || !size)
        return std::nullopt;
    return Rect {origin->first, origin->second, size->first, size->second};
}

template <typename T>
std::optional<std::vector<T>> readList(const Value& value, std::optional<T> (*readItem)(const Value&))
{
    const auto array = readAs<dom::array>(value);
    if (!array)
        return std::nullopt;
    std::vector<T> items;
    items.reserve(array->size());
    for (const auto element : *array) {
        auto item = readItem(element);
        if (!item)
            return std::nullopt;
        items.push_back(std::move(*item));
    }
    return items;
}

std::optional<Card> readCard(const Value& value)
{
    constexpr std::array<std::string_view, 4> kNames {"content", "createdAt", "id", "updatedAt"};
    const auto members = membersOf(value, kNames);
    const auto content = readAs<std::string_view>(members[0]);
    const auto createdAt = readDate(members[1]);
    const auto id = readUuid(members[2]);
    const auto updatedAt = readDate(members[3]);
    if (!content || !createdAt || !id || !updatedAt)
        return std::nullopt;
    return Card {*id, std::string(*content), *createdAt, *updatedAt};
}

std::optional<Deck> readDeck(const Value& value)
{
    constexpr std::array<std::string_view, 5> kNames {"cards", "createdAt", "id", "name", "updatedAt"};
    const auto members = membersOf(value, kNames);
    auto cards = readList(members[0], readCard);
    const auto createdAt = readDate(members[1]);
    const auto id = readUuid(members[2]);
    const auto name = readAs<std::string_view>(members[3]);
    const auto updatedAt = readDate(members[4]);
    if (!cards || !createdAt || !id || !name || !updatedAt)
        return std::nullopt;
    return Deck {*id, std::string(*name), std::move(*cards), *createdAt, *updatedAt};
}

std::optional<AppState> readState(const Value& value)
{
    constexpr std::array<std::string_view, 6> kNames {
        "activeCardIndex", "activeDeckId", "decks", "fontSize", "opacity", "windowFrame"};
    const auto members = membersOf(value, kNames);
    const auto activeCardIndex = readInteger(members[0]);
    const auto activeDeckId = readUuid(members[1]);
    auto decks = readList(members[2], readDeck);
    const auto fontSize = readAs<double>(members[3]);
    const auto opacity = readAs<double>(members[4]);
    const auto windowFrame = readRect(members[5]);
    if (!activeCardIndex || !decks || !fontSize || !opacity || (!activeDeckId && !isAbsent(members[1]))
        || (!windowFrame && !isAbsent(members[5])))
        return std::nullopt;
    return AppState {std::move(*decks), activeDeckId, *activeCardIndex, windowFrame, *opacity, *fontSize};
}

} // namespace

std::optional<AppState> decodeState(const std::string& json)
{
    constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
    const std::size_t start = json.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
    const bool isPadded = json.capacity() - json.size() >= kDecodePadding;

    dom::parser parser;
    dom::element root;
    if (parser.parse(json.data() + start, json.size() - start, !isPadded).get(root) != simdjson::SUCCESS)
        return std::nullopt;
    return readState(root);
}

} // namespace cuebright
