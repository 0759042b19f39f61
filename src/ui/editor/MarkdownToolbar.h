#pragma once

#include "ui/base/UiContext.h"

#include <QWidget>

namespace cuebright {

class TextViewManager;

/// The row of formatting buttons.
class MarkdownToolbar final : public QWidget {
public:
    /// `manager` must outlive this.
    MarkdownToolbar(const UiContext& context, TextViewManager& manager, QWidget* parent);
};

} // namespace cuebright
