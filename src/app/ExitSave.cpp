#include "app/ExitSave.h"

#include <cassert>
#include <cstdlib>
#include <utility>

namespace cuebright {

namespace {

// std::atexit() passes no argument.
std::function<void()>* pending = nullptr;

void runPending()
{
    if (const auto save = std::exchange(pending, nullptr))
        (*save)();
}

} // namespace

ExitSave::ExitSave(std::function<void()> save)
    : m_save(std::move(save))
{
    assert(!pending);
    pending = &m_save;
    [[maybe_unused]] static const bool isRegistered = std::atexit(runPending) == 0;
}

ExitSave::~ExitSave() { pending = nullptr; }

} // namespace cuebright
