#include "store/CardStoreInternal.h"

#include "foundation/Unicode.h"
#include "platform/Clock.h"

namespace cuebright {

namespace {

constexpr Animation kEditorFade {Animation::Curve::EaseInOut, Seconds(0.14)};

} // namespace

void CardStore::setEditText(std::string text) { set(m_editText, std::move(text), Property::EditText); }

void CardStore::beginEditing()
{
    const auto card = activeCard();
    if (!card || m_isEditing)
        return;
    m_originalEditText = card->content;
    setEditText(isAllWhiteSpace(card->content) ? "# " : card->content);
    setEditing(true);
}

void CardStore::saveEdit()
{
    if (!m_isEditing || !activeCard())
        return;
    const bool isUnchanged = m_editText == m_originalEditText;
    notifyWillChange(Property::Decks);
    const auto card = mutableActiveCard();
    card->content = m_editText;
    card->updatedAt = m_platform.clock.now();
    mutableActiveDeck()->updatedAt = m_platform.clock.now();
    setEditing(false);
    scheduleSave();
    if (!isUnchanged)
        showFeedback("Saved");
}

void CardStore::cancelEdit()
{
    if (!m_isEditing)
        return;
    const bool isUnchanged = m_editText == m_originalEditText;
    setEditText(m_originalEditText);
    setEditing(false);
    if (!isUnchanged)
        showFeedback("Discarded");
}

void CardStore::setEditing(bool isEditing)
{
    const AnimatedTransaction transaction(*this, kEditorFade);
    set(m_isEditing, isEditing, Property::IsEditing);
}

/// Keeps the text of an open edit, but not as `saveEdit` does: no new dates, no animation, no feedback.
void CardStore::saveTextAndCloseEdit()
{
    if (!m_isEditing)
        return;
    if (activeCard()) {
        notifyWillChange(Property::Decks);
        mutableActiveCard()->content = m_editText;
    }
    set(m_isEditing, false, Property::IsEditing);
}

} // namespace cuebright
