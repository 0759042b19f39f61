#include "model/AppState.h"

#include "platform/UuidSource.h"

#include <array>
#include <span>
#include <string_view>

namespace cuebright {

namespace {

constexpr std::array<std::string_view, 5> kGettingStarted {
    "# Cue cards your audience can’t see.\n\n"
    "- Cuebright is a **floating notes window** that stays on top of your slides, your browser, your demo — "
    "everything.\n"
    "- It’s **invisible to screen share**. Zoom, Teams, Meet, Webex, Loom, QuickTime — none of them can see this "
    "window.\n"
    "- Your audience sees your presentation. You see your talk track. That’s the whole idea.",
    "# Navigating your cards\n\n"
    "- Press the **← → arrow keys** to move between cards.\n"
    "- Or use **⌘←** and **⌘→** (Cmd + arrows).\n"
    "- Or click the arrow buttons in the bottom-right corner.\n"
    "- The card counter in the top-left shows where you are: *CARD 01 / 05*.",
    "# Editing your cards\n\n"
    "- Click **EDIT** in the bottom-right to enter edit mode.\n"
    "- Write in **Markdown**: `# Heading`, `**bold**`, `*italic*`, `- bullet`.\n"
    "- Use the **toolbar** above the editor for quick formatting.\n"
    "- Click **DONE** to save, or **CANCEL** to discard. Keyboard: **⌘Return** saves, **Esc** saves, **⌘.** cancels.",
    "# Organising your decks\n\n"
    "- Use the **deck picker** in the top-right to switch between decks.\n"
    "- **⌘1** through **⌘9** switches decks by number.\n"
    "- **File → New Deck** creates a fresh deck. **File → Rename Deck** renames the current one.\n"
    "- **File → Export Deck** saves your cards as a `.md` file.",
    "# Tips for your first presentation\n\n"
    "- Press **⌘⇧S** to toggle Cuebright on and off from *any* app — even mid-screen-share.\n"
    "- Use **⌘]** and **⌘[** to adjust window opacity so you can see through to your slides.\n"
    "- Start the **timer** in the footer to track your talk time.\n"
    "- Open **Settings** with **⌘,** to change theme, text size, and opacity.\n"
    "- Now delete this deck and create your own. Good luck out there.",
};

constexpr std::array<std::string_view, 4> kProductDemo {
    "# Welcome — set the frame before you show anything.\n\n"
    "- Thank them for their time. Confirm the 30-minute slot.\n"
    "- Restate what they told us in discovery: **3 pain points**, ranked.\n"
    "- Tell them the demo follows *their* priorities, not our feature list.\n"
    "- If VP of Eng is on the call → lead with the API, not the dashboard.",
    "# Live demo flow\n\n"
    "- Start with the **dashboard** — first thing they see every morning.\n"
    "- Show the workflow builder — drag the three steps from their use case.\n"
    "- Hit the *magic moment*: run the automation, show real output in < 5 seconds.\n"
    "- Pause for questions. Don’t rush past the reaction.",
    "# Objection handling\n\n"
    "- **“We already have a tool for this.”** → Ask how long onboarding took.\n"
    "- **“Can it integrate with X?”** → Yes, show the integrations page. If not supported, say so.\n"
    "- **“What about security?”** → SOC 2 Type II, SSO, data residency options.\n"
    "- Never bluff. “I’ll confirm with engineering” beats a wrong answer every time.",
    "# Closing — the ask\n\n"
    "- Propose a **14-day free pilot** — removes budget committee friction.\n"
    "- Offer to run onboarding personally for the first cohort.\n"
    "- Timeline: decision by end of month, rollout starts next quarter.\n"
    "- Follow up within 24 hours with the ROI calculator and case study deck.",
};

constexpr std::array<std::string_view, 2> kBoardUpdate {
    "# Renewals are strong. We’re *still* leaving money on the table.\n\n"
    "- Open with the **118% net retention** figure — up from 104% in Q2.\n"
    "- Acknowledge: per-seat expansion has plateaued.\n"
    "- Pivot: **70% of growth** is now coming from enterprise contracts.\n"
    "- If pushed on per-seat → emphasize total contract value, not seat count.",
    "# Competitive positioning\n\n"
    "- We win on **time-to-value** — 15-minute setup vs. 3-week onboarding.\n"
    "- Don’t engage on feature-count comparisons — reframe to outcomes.\n"
    "- If they mention Acme Corp → ask about their churn rate (it’s 18%).\n"
    "- Our NPS is **72** — top decile in the category. Use it.",
};

Deck makeDeck(std::string_view name, std::span<const std::string_view> texts, Instant now, UuidSource& uuids)
{
    Deck deck {uuids.makeUuid(), std::string(name), {}, now, now};
    deck.cards.reserve(texts.size());
    for (const auto text : texts)
        deck.cards.push_back({uuids.makeUuid(), std::string(text), now, now});
    return deck;
}

} // namespace

AppState AppState::makeDefault(Instant now, UuidSource& uuids)
{
    AppState state;
    state.decks = sampleDecks(now, uuids);
    state.activeDeckId = state.decks.front().id;
    return state;
}

std::vector<Deck> AppState::sampleDecks(Instant now, UuidSource& uuids)
{
    std::vector<Deck> decks;
    decks.push_back(makeDeck("Getting Started", kGettingStarted, now, uuids));
    decks.push_back(makeDeck("Product Demo", kProductDemo, now, uuids));
    decks.push_back(makeDeck("Q4 Board Update", kBoardUpdate, now, uuids));
    return decks;
}

} // namespace cuebright
