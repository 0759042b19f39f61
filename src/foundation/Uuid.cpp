#include "foundation/Uuid.h"

namespace cuebright {

namespace {

constexpr std::array<std::uint8_t, 256> kDigitValues = [] {
    std::array<std::uint8_t, 256> values {};
    values.fill(0xff);
    for (std::uint8_t i = 0; i < 10; ++i)
        values[std::size_t {'0'} + i] = i;
    for (std::uint8_t i = 0; i < 6; ++i)
        values[std::size_t {'a'} + i] = values[std::size_t {'A'} + i] = static_cast<std::uint8_t>(10 + i);
    return values;
}();

constexpr bool hyphenBefore(std::size_t byteIndex)
{
    return byteIndex == 4 || byteIndex == 6 || byteIndex == 8 || byteIndex == 10;
}

} // namespace

std::optional<Uuid> Uuid::parse(std::string_view text)
{
    if (text.size() != kTextLength)
        return std::nullopt;
    Uuid uuid;
    std::size_t position = 0;
    for (std::size_t i = 0; i < uuid.bytes.size(); ++i) {
        if (hyphenBefore(i) && text[position++] != '-')
            return std::nullopt;
        const auto high = kDigitValues[static_cast<unsigned char>(text[position])];
        const auto low = kDigitValues[static_cast<unsigned char>(text[position + 1])];
        if ((high | low) > 0x0f)
            return std::nullopt;
        uuid.bytes[i] = static_cast<std::uint8_t>(high << 4 | low);
        position += 2;
    }
    return uuid;
}

char* Uuid::writeText(char* out) const
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (hyphenBefore(i))
            *out++ = '-';
        *out++ = kDigits[bytes[i] >> 4];
        *out++ = kDigits[bytes[i] & 0x0f];
    }
    return out;
}

std::string Uuid::text() const
{
    std::string text(kTextLength, '\0');
    writeText(text.data());
    return text;
}

} // namespace cuebright
