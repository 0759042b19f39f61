#include "model/StateFile.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <utility>

namespace cuebright {

namespace {

constexpr std::size_t kWord = 8; ///< bytes tested together
constexpr std::size_t kPiece = 1024; ///< bytes escaped between two checks of the room left
constexpr std::size_t kCardOverhead = 256; ///< estimated size of a record without its text

/// The number of bytes before the first one that needs an escape; `kWord` if none does. Tests all bytes of a word
/// together: each test sets the high bit of the bytes that match, and is exact up to the first of them.
std::size_t plainBytesInWord(const char* text)
{
    constexpr std::uint64_t kOnes = 0x0101010101010101;
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < kWord; ++i)
        word |= std::uint64_t {static_cast<unsigned char>(text[i])} << (8 * i);
    const auto below = [&](std::uint64_t bytes, std::uint64_t limit) { return (bytes - kOnes * limit) & ~bytes; };
    const auto equal = [&](unsigned char c) { return below(word ^ (kOnes * c), 1); };
    const auto found = (below(word, 0x20) | equal('"') | equal('\\') | equal('/')) & (kOnes * 0x80);
    return static_cast<std::size_t>(std::countr_zero(found)) / 8;
}

struct Escape {
    char text[kWord - 1];
    std::uint8_t length;
};

constexpr std::array<Escape, 256> kEscapes = [] {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::array<Escape, 256> escapes {};
    for (std::size_t c = 0; c < 0x20; ++c)
        escapes[c] = {{'\\', 'u', '0', '0', kDigits[c >> 4], kDigits[c & 0x0f]}, 6};
    for (const auto& [c, letter] : {std::pair('\b', 'b'), {'\f', 'f'}, {'\n', 'n'}, {'\r', 'r'}, {'\t', 't'},
             {'"', '"'}, {'\\', '\\'}, {'/', '/'}})
        escapes[static_cast<unsigned char>(c)] = {{'\\', letter}, 2};
    return escapes;
}();

/// Writes `sizeof(Escape)` bytes, of which only those before the returned end are valid.
char* writeEscape(char c, char* out)
{
    const auto& escape = kEscapes[static_cast<unsigned char>(c)];
    std::memcpy(out, &escape, sizeof(Escape));
    return out + escape.length;
}

/// Builds the text in a buffer small enough for the CPU cache and flushes it when it is full. This avoids clearing the
/// string before writing and checking its capacity at every byte.
class JsonText final {
public:
    JsonText(std::size_t expectedSize, std::string recycled)
        : m_text(std::move(recycled))
    {
        m_text.clear();
        m_text.reserve(expectedSize);
    }

    void add(std::string_view fragment)
    {
        makeRoom(fragment.size());
        m_end = std::copy(fragment.begin(), fragment.end(), m_end);
    }

    template <typename Number> void addNumber(Number value)
    {
        constexpr std::size_t kLongestNumber = 32;
        makeRoom(kLongestNumber);
        m_end = std::to_chars(m_end, m_end + kLongestNumber, value).ptr;
    }

    void addQuoted(const Uuid& uuid)
    {
        makeRoom(Uuid::kTextLength + 2);
        *m_end++ = '"';
        m_end = uuid.writeText(m_end);
        *m_end++ = '"';
    }

    void addQuoted(Instant instant)
    {
        makeRoom(kIso8601Length + 2);
        *m_end++ = '"';
        m_datesAreValid = m_dates.write(instant, m_end) && m_datesAreValid;
        m_end += kIso8601Length;
        *m_end++ = '"';
    }

    void addQuoted(std::string_view text)
    {
        add("\"");
        for (; !text.empty(); text.remove_prefix(std::min(kPiece, text.size())))
            addEscaped(text.substr(0, kPiece));
        add("\"");
    }

    /// False after a date that could not be written.
    [[nodiscard]] bool datesAreValid() const { return m_datesAreValid; }

    [[nodiscard]] std::string take()
    {
        flush();
        return std::move(m_text);
    }

private:
    void addEscaped(std::string_view piece)
    {
        makeRoom(sizeof(Escape) * kPiece + kWord);
        const char* in = piece.data();
        const char* const end = in + piece.size();
        char* out = m_end; // a local, since writing a char may alias a member
        while (end - in >= static_cast<std::ptrdiff_t>(kWord)) {
            std::memcpy(out, in, kWord);
            const auto plain = plainBytesInWord(in);
            in += plain;
            out += plain;
            if (plain < kWord)
                out = writeEscape(*in++, out);
        }
        for (; in != end; ++in) {
            if (kEscapes[static_cast<unsigned char>(*in)].length > 0)
                out = writeEscape(*in, out);
            else
                *out++ = *in;
        }
        m_end = out;
    }

    void makeRoom(std::size_t size)
    {
        if (static_cast<std::size_t>(m_buffer.data() + m_buffer.size() - m_end) < size)
            flush();
    }

    void flush()
    {
        m_text.append(m_buffer.data(), static_cast<std::size_t>(m_end - m_buffer.data()));
        m_end = m_buffer.data();
    }

    std::string m_text;
    std::array<char, 16384> m_buffer;
    char* m_end = m_buffer.data();
    Iso8601Writer m_dates;
    bool m_datesAreValid = true;
};

/// A whole array, each element on separate lines.
template <typename T>
void addList(JsonText& json, const std::vector<T>& items, std::string_view indent, void (*addItem)(JsonText&, const T&))
{
    std::string_view separator = "[\n";
    for (const auto& item : items) {
        json.add(separator);
        addItem(json, item);
        separator = ",\n";
    }
    json.add(items.empty() ? "[\n\n" : "\n");
    json.add(indent);
    json.add("]");
}

void addCard(JsonText& json, const Card& card)
{
    json.add("        {\n          \"content\" : ");
    json.addQuoted(card.content);
    json.add(",\n          \"createdAt\" : ");
    json.addQuoted(card.createdAt);
    json.add(",\n          \"id\" : ");
    json.addQuoted(card.id);
    json.add(",\n          \"updatedAt\" : ");
    json.addQuoted(card.updatedAt);
    json.add("\n        }");
}

void addDeck(JsonText& json, const Deck& deck)
{
    json.add("    {\n      \"cards\" : ");
    addList(json, deck.cards, "      ", addCard);
    json.add(",\n      \"createdAt\" : ");
    json.addQuoted(deck.createdAt);
    json.add(",\n      \"id\" : ");
    json.addQuoted(deck.id);
    json.add(",\n      \"name\" : ");
    json.addQuoted(deck.name);
    json.add(",\n      \"updatedAt\" : ");
    json.addQuoted(deck.updatedAt);
    json.add("\n    }");
}

/// An upper estimate for usual texts; memory pages that stay unused cost nothing.
std::size_t expectedSize(const std::vector<Deck>& decks)
{
    std::size_t size = kCardOverhead;
    for (const auto& deck : decks) {
        size += kCardOverhead + deck.name.size() * 9 / 8;
        for (const auto& card : deck.cards)
            size += kCardOverhead + card.content.size() * 9 / 8;
    }
    return size;
}

} // namespace

std::variant<std::string, EncodeError> encodeState(const StateToEncode& state, std::string recycled)
{
    if (!std::isfinite(state.fontSize) || !std::isfinite(state.opacity))
        return EncodeError {"the text size or the opacity is not a finite number"};

    JsonText json(expectedSize(state.decks), std::move(recycled));
    json.add("{\n  \"activeCardIndex\" : ");
    json.addNumber(state.activeCardIndex);
    if (state.activeDeckId) {
        json.add(",\n  \"activeDeckId\" : ");
        json.addQuoted(*state.activeDeckId);
    }
    json.add(",\n  \"decks\" : ");
    addList(json, state.decks, "  ", addDeck);
    json.add(",\n  \"fontSize\" : ");
    json.addNumber(state.fontSize);
    json.add(",\n  \"opacity\" : ");
    json.addNumber(state.opacity);
    json.add("\n}");
    if (!json.datesAreValid())
        return EncodeError {"a date lies outside the years 0 to 9999"};
    return json.take();
}

} // namespace cuebright
