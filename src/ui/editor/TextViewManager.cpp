#include "ui/editor/TextViewManager.h"

#include "ui/editor/MarkdownEditor.h"
#include "ui/editor/MarkdownFormatting.h"

namespace cuebright {

MarkdownEditor* TextViewManager::textView() const { return m_textView; }

void TextViewManager::setTextView(MarkdownEditor* textView) { m_textView = textView; }

template <typename Make> void TextViewManager::apply(Make make)
{
    const auto view = textView();
    if (view && view->mayChange())
        view->apply(make(view->text(), view->selectedRange()));
}

void TextViewManager::wrapSelection(const QString& marker)
{
    apply([&](const QString& text, TextRange selection) { return wrapEdit(text, selection, marker); });
}

void TextViewManager::insertLink() { apply(linkEdit); }

void TextViewManager::toggleLinePrefix(const QString& prefix)
{
    apply([&](const QString& text, TextRange selection) { return linePrefixEdit(text, selection, prefix); });
}

} // namespace cuebright
