#include "store/CardStoreInternal.h"

#include "model/StateFile.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Log.h"
#include "platform/Preferences.h"
#include "store/PreferenceKeys.h"
#include "store/ThemeChoices.h"

#include <algorithm>
#include <cstdlib>

namespace cuebright {

namespace {

constexpr Seconds kSaveDelay {0.25};
constexpr auto kSaveFailedMessage = "Not saved — check disk space";

} // namespace

void CardStore::openAppSupportDir()
{
    const auto directory = m_platform.fileSystem.applicationSupportDirectory();
    if (!directory)
        std::abort(); // every supported system has one
    m_appSupportDir = *directory / "Cuebright";
    m_platform.fileSystem.createDirectories(m_appSupportDir); // a failure shows at the first save
}

std::filesystem::path CardStore::stateURL() const { return m_appSupportDir / "state.json"; }

void CardStore::loadFromDisk()
{
    auto& fileSystem = m_platform.fileSystem;
    std::optional<AppState> state;
    if (fileSystem.exists(stateURL())) {
        if (const auto json = fileSystem.readFile(stateURL(), kDecodePadding))
            state = decodeState(*json);
    }
    if (!state || state->decks.empty())
        state = AppState::makeDefault(m_platform.clock.now(), m_platform.uuids);
    applyState(std::move(*state));
}

void CardStore::applyState(AppState state)
{
    set(m_decks, std::move(state.decks), Property::Decks);
    const auto isActive = [&](const Deck& deck) { return deck.id == state.activeDeckId; };
    const auto active = std::find_if(m_decks.begin(), m_decks.end(), isActive);
    set(m_activeDeckIndex, active == m_decks.end() ? 0 : active - m_decks.begin(), Property::ActiveDeckIndex);
    const auto lastIndex = std::max<std::int64_t>(cardCount() - 1, 0);
    set(m_activeCardIndex, std::min(state.activeCardIndex, lastIndex), Property::ActiveCardIndex);
}

void CardStore::scheduleSave()
{
    m_saveWorkItem = m_platform.mainQueue.after(kSaveDelay, [this] { writeToDisk(); });
}

void CardStore::flushToDisk()
{
    m_saveWorkItem.cancel();
    writeToDisk();
}

void CardStore::writeToDisk()
{
    const auto deck = activeDeck();
    auto encoded = encodeState({.decks = m_decks,
                                   .activeDeckId = deck ? std::optional(deck->id) : std::nullopt,
                                   .activeCardIndex = m_activeCardIndex,
                                   .opacity = m_opacity,
                                   .fontSize = m_fontSize},
        std::move(m_writeBuffer));
    if (const auto error = std::get_if<EncodeError>(&encoded)) {
        reportSaveFailure(error->description);
        return;
    }
    m_platform.fileSystem.createDirectories(m_appSupportDir); // it may have been removed since the start
    m_writeBuffer = std::get<std::string>(std::move(encoded));
    const auto error = m_platform.fileSystem.writeFileAtomically(stateURL(), m_writeBuffer, FileSystem::Readers::Owner);
    if (error)
        reportSaveFailure(error->description);
    else
        reportSaveSuccess();
}

void CardStore::reportSaveSuccess()
{
    if (m_consecutiveSaveFailures == 0)
        return;
    m_consecutiveSaveFailures = 0;
    m_saveReport = m_platform.mainQueue.post([this] {
        set(m_persistentError, std::nullopt, Property::PersistentError);
        set(m_errorDismissed, false, Property::ErrorDismissed);
        showFeedback("Saved");
    });
}

void CardStore::reportSaveFailure(const std::string& description)
{
    ++m_consecutiveSaveFailures;
    m_platform.log.writeLine(
        "[Cuebright] ERROR: Save failed (" + std::to_string(m_consecutiveSaveFailures) + "x): " + description);
    m_saveReport = m_platform.mainQueue.post([this] {
        set(m_persistentError, kSaveFailedMessage, Property::PersistentError);
        set(m_errorDismissed, false, Property::ErrorDismissed);
    });
}

void CardStore::dismissError() { set(m_errorDismissed, true, Property::ErrorDismissed); }

void CardStore::resetAllData()
{
    m_platform.fileSystem.removeFile(stateURL());
    for (const auto key : {preferenceKeys::kTheme, preferenceKeys::kFontSize, preferenceKeys::kOpacity,
             preferenceKeys::kWindowFrame, preferenceKeys::kOnboardingDone})
        m_platform.preferences.remove(key);
    loadFromDisk();
    setTheme(themeNames::kSystem);
    resetFontSize();
    setOpacity(1.0);
    if (const auto undoManager = m_undoManager.lock())
        undoManager->removeAllActions();
}

} // namespace cuebright
