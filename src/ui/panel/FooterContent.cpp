#include "ui/panel/FooterContent.h"

#include "store/CardStore.h"

#include <algorithm>

namespace cuebright {

namespace {

constexpr int kMinimumText = 28;

/// Shrinks an item by what is missing, but not below its minimum.
void shrink(int& width, int minimum, int& missing)
{
    const int given = std::clamp(missing, 0, std::max(width - minimum, 0));
    width -= given;
    missing -= given;
}

void leaveOut(int& width, int& missing)
{
    if (missing <= 0 || width == 0)
        return;
    missing -= width + kFooterGap;
    width = 0;
}

/// Gives a shrunk item the room that another one left.
void growBack(int& width, int wanted, int& missing)
{
    if (width == 0)
        return;
    const int taken = std::clamp(-missing, 0, wanted - width);
    width += taken;
    missing += taken;
}

} // namespace

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

FooterPlaces footerPlaces(FooterWidths widths, int available)
{
    const auto wanted = widths;
    int missing = -available - kFooterGap;
    for (const int width :
        {widths.position, widths.wordCount, widths.timer, widths.error, widths.feedback, widths.buttons})
        missing += width > 0 ? width + kFooterGap : 0;
    shrink(widths.error, widths.errorMinimum, missing);
    shrink(widths.feedback, kMinimumText, missing);
    shrink(widths.wordCount, kMinimumText, missing);
    leaveOut(widths.feedback, missing);
    leaveOut(widths.wordCount, missing);
    growBack(widths.wordCount, wanted.wordCount, missing);
    growBack(widths.feedback, wanted.feedback, missing);
    growBack(widths.error, wanted.error, missing);

    int x = 0;
    const auto next = [&](int width) {
        const FooterPlaces::Place place {x, width};
        x += width > 0 ? width + kFooterGap : 0;
        return place;
    };
    FooterPlaces places;
    places.position = next(widths.position);
    places.wordCount = next(widths.wordCount);
    places.timer = next(widths.timer);
    places.error = next(widths.error);
    places.feedback = next(widths.feedback);
    places.buttons = {std::max(x, available - widths.buttons), widths.buttons};
    return places;
}

} // namespace cuebright
