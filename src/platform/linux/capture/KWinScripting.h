#pragma once

#include "foundation/Signal.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace cuebright {

/// How a script gets into KWin and speaks from there. Nothing waits: each `done` runs later on the main thread, or not
/// at all once this object is gone.
class KWinScripting {
public:
    enum class Availability { Absent, Present };

    virtual ~KWinScripting() = default;

    /// Looks for KWin. Call once; `availabilityChanged` answers.
    virtual void start() = 0;

    /// The name under which a script reaches us; empty before `start` and where there is no bus.
    [[nodiscard]] virtual std::string busName() const = 0;

    /// `done` may be empty, and then the request leaves even if this object goes away at once. It gets false when KWin
    /// could not be asked; whether there was such a plugin makes no difference.
    virtual void unload(std::string_view plugin, std::function<void(bool wasAnswered)> done) = 0;
    /// `done` gets the script's number, negative where KWin refuses it; nothing when KWin could not be asked.
    virtual void load(
        std::string_view script, std::string_view plugin, std::function<void(std::optional<int>)> done) = 0;
    virtual void run(int id, std::function<void(bool isRunning)> done) = 0;

    /// With `Present`: it is a KWin that has not been seen yet and holds none of our scripts.
    Signal<Availability> availabilityChanged;
    /// A script in the present KWin has reported this word.
    Signal<std::string_view> reported;
};

} // namespace cuebright
