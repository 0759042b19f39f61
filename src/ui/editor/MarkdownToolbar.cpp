#include "ui/editor/MarkdownToolbar.h"

#include "platform/qt/QtColors.h"
#include "ui/editor/TextViewManager.h"
#include "ui/widgets/ChromeButton.h"

#include <QHBoxLayout>
#include <QPainter>

#include <array>
#include <optional>

namespace cuebright {

namespace {

constexpr int kGap = 4;
constexpr int kSymbolSize = 13;
constexpr int kDividerHeight = 18;
constexpr int kDividerPadding = 4;

enum class Operation { Wrap, ToggleLinePrefix, InsertLink };

struct Row {
    Icon icon;
    const char* name;
    Operation operation;
    const char* argument = "";
    bool endsGroup = false;
};

constexpr std::array kRows {
    Row {Icon::Bold, "Bold (⌘B)", Operation::Wrap, "**"},
    Row {Icon::Italic, "Italic (⌘I)", Operation::Wrap, "*", true},
    Row {Icon::Heading, "Heading", Operation::ToggleLinePrefix, "# "},
    Row {Icon::BulletList, "Bullet list", Operation::ToggleLinePrefix, "- "},
    Row {Icon::NumberedList, "Numbered list", Operation::ToggleLinePrefix, "1. "},
    Row {Icon::Code, "Inline code", Operation::Wrap, "`", true},
    Row {Icon::Link, "Link", Operation::InsertLink},
    Row {Icon::Blockquote, "Blockquote", Operation::ToggleLinePrefix, "> "},
};

void perform(const Row& row, TextViewManager& manager)
{
    switch (row.operation) {
    case Operation::Wrap:
        return manager.wrapSelection(QString::fromUtf8(row.argument));
    case Operation::ToggleLinePrefix:
        return manager.toggleLinePrefix(QString::fromUtf8(row.argument));
    case Operation::InsertLink:
        return manager.insertLink();
    }
}

class Divider final : public QWidget {
public:
    Divider(const UiContext& context, QWidget* parent)
        : QWidget(parent)
        , m_context(context)
    {
        setFixedSize(1 + 2 * kDividerPadding, kDividerHeight);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter(this).fillRect(kDividerPadding, 0, 1, height(), toQColor(m_context.colors().sep()));
    }

private:
    const UiContext& m_context;
};

} // namespace

MarkdownToolbar::MarkdownToolbar(const UiContext& context, TextViewManager& manager, QWidget* parent)
    : QWidget(parent)
{
    const auto line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(kGap);
    for (const auto& row : kRows) {
        const auto button = new ChromeButton(context, row.icon, kSymbolSize, QString::fromUtf8(row.name), this);
        connect(button, &QAbstractButton::clicked, this, [&row, &manager] { perform(row, manager); });
        line->addWidget(button);
        if (row.endsGroup)
            line->addWidget(new Divider(context, this), 0, Qt::AlignVCenter);
    }
    line->addStretch(1);
}

} // namespace cuebright
