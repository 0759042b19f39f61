#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace cuebright {

/// The user's preferences by key. A value that is missing or of another type reads as absent. Writing takes effect
/// immediately and reports no errors.
class Preferences {
public:
    using Numbers = std::map<std::string, double, std::less<>>;

    virtual ~Preferences() = default;

    /// True only for true, 1 and yes; any other text is false.
    [[nodiscard]] virtual std::optional<bool> boolean(std::string_view key) = 0;
    [[nodiscard]] virtual std::optional<std::int64_t> integer(std::string_view key) = 0;
    /// Always finite.
    [[nodiscard]] virtual std::optional<double> number(std::string_view key) = 0;
    [[nodiscard]] virtual std::optional<std::string> text(std::string_view key) = 0;
    /// The finite numbers kept under `key`, each by its own name; empty if there are none.
    [[nodiscard]] virtual Numbers numbers(std::string_view key) = 0;

    virtual void setBoolean(std::string_view key, bool value) = 0;
    virtual void setInteger(std::string_view key, std::int64_t value) = 0;
    virtual void setNumber(std::string_view key, double value) = 0;
    virtual void setText(std::string_view key, std::string_view value) = 0;
    virtual void setNumbers(std::string_view key, const Numbers& values) = 0;

    /// Removes the value, whatever its type.
    virtual void remove(std::string_view key) = 0;
};

} // namespace cuebright
