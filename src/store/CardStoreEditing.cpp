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
    replaceActiveCardContent(m_editText);
    notifyWillChange(Property::Decks);
    mutableActiveCard()->updatedAt = m_platform.clock.now();
    touchActiveDeck();
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

/// Ends an open edit for a move to another deck: the text is kept, the card's date and the screen stay as they are.
void CardStore::saveTextAndCloseEdit()
{
    if (!m_isEditing)
        return;
    if (activeCard())
        replaceActiveCardContent(m_editText);
    set(m_isEditing, false, Property::IsEditing);
}

void CardStore::replaceActiveCardContent(std::string content)
{
    notifyWillChange(Property::Decks);
    mutableActiveCard()->content = std::move(content);
}

void CardStore::touchActiveDeck()
{
    notifyWillChange(Property::Decks);
    mutableActiveDeck()->updatedAt = m_platform.clock.now();
}

} // namespace cuebright
