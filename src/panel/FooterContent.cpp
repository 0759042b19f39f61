#include "panel/FooterContent.h"

#include "store/CardStore.h"

namespace cuebright {

FooterContent footerContent(const CardStore& store)
{
    FooterContent content;
    content.position = store.footerLabel();
    content.positionAccessibleName =
        "Card " + std::to_string(store.activeCardIndex() + 1) + " of " + std::to_string(store.cardCount());
    if (store.showWordCount())
        content.wordCount = std::to_string(store.wordCount()) + "w · " + store.readingTime();
    if (!store.errorDismissed())
        content.error = store.persistentError();
    content.feedback = store.feedbackMessage();
    content.isEditing = store.isEditing();
    content.canGoPrev = store.canGoPrev();
    content.canGoNext = store.canGoNext();
    return content;
}

} // namespace cuebright
