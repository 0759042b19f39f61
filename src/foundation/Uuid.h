#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace cuebright {

/// A universally unique identifier (RFC 9562): 16 bytes in the order of its text form.
struct Uuid {
    static constexpr std::size_t kTextLength = 36;

    std::array<std::uint8_t, 16> bytes {};

    /// Reads the 8-4-4-4-12 form, hexadecimal digits of either case; nothing else, no braces.
    [[nodiscard]] static std::optional<Uuid> parse(std::string_view text);

    /// The 8-4-4-4-12 form with upper-case digits.
    [[nodiscard]] std::string text() const;
    /// Writes the same `kTextLength` characters to `out`, without a terminator; returns the end.
    char* writeText(char* out) const;

    auto operator<=>(const Uuid&) const = default;
};

} // namespace cuebright
