#include "Require.h"
#include "model/StateFile.h"

namespace {

using namespace cuebright;
using fuzz::require;

std::string encoded(const AppState& state)
{
    auto result = encodeState({state.decks, state.activeDeckId, state.activeCardIndex, state.opacity, state.fontSize});
    require(std::holds_alternative<std::string>(result), "what was read can be written");
    return std::get<std::string>(std::move(result));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string json(reinterpret_cast<const char*>(data), size);
    const auto state = decodeState(json);
    if (!state)
        return 0;
    const auto written = encoded(*state);
    const auto readAgain = decodeState(written);
    require(readAgain.has_value(), "what was written can be read");
    require(encoded(*readAgain) == written, "writing the same state gives the same text");
    return 0;
}
