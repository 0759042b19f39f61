#include "ui/panel/DeckNameDialog.h"

#include "platform/qt/TextConversion.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <limits>
#include <utility>

namespace cuebright {

namespace {

constexpr int kFieldWidth = 320;

/// QLineEdit keeps pasted line breaks.
QString onOneLine(QString text)
{
    for (auto& c : text) {
        if (c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QChar::LineSeparator
            || c == QChar::ParagraphSeparator)
            c = QLatin1Char(' ');
    }
    return text;
}

} // namespace

DeckNameDialog::Texts DeckNameDialog::newDeck()
{
    return {QStringLiteral("New Deck"), QStringLiteral("Enter a name for the new deck."), QStringLiteral("Create")};
}

DeckNameDialog::Texts DeckNameDialog::renameDeck()
{
    return {QStringLiteral("Rename Deck"), QStringLiteral("Enter a new name for the deck."), QStringLiteral("Rename")};
}

DeckNameDialog::DeckNameDialog(
    const Texts& texts, std::function<void(const std::string& name)> confirmed, QWidget* parent)
    : QDialog(parent)
    , m_confirmed(std::move(confirmed))
{
    setWindowTitle(texts.title);
    setAccessibleDescription(texts.message);

    const auto title = new QLabel(texts.title, this);
    auto titleFont = title->font();
    titleFont.setBold(true);
    title->setFont(titleFont);
    const auto message = new QLabel(texts.message, this);
    m_name = new QLineEdit(this);
    m_name->setMaxLength(std::numeric_limits<int>::max()); // instead of 32,767, which would cut the name
    m_name->setPlaceholderText(QStringLiteral("Deck name"));
    m_name->setAccessibleName(QStringLiteral("Deck name"));
    m_name->setAccessibleDescription(texts.message);
    m_name->setMinimumWidth(kFieldWidth);
    const auto confirm = new QPushButton(texts.confirm, this);
    confirm->setDefault(true);
    const auto cancel = new QPushButton(QStringLiteral("Cancel"), this);
    cancel->setAutoDefault(false);
    connect(confirm, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    const auto buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(confirm);
    buttons->addWidget(cancel);
    const auto column = new QVBoxLayout(this);
    column->setContentsMargins(20, 16, 20, 16);
    column->setSpacing(10);
    column->addWidget(title);
    column->addWidget(message);
    column->addWidget(m_name);
    column->addLayout(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

void DeckNameDialog::ask(std::string_view name)
{
    if (isVisible())
        return;
    m_name->setText(toQString(name));
    m_name->selectAll();
    m_name->setFocus();
    open();
}

void DeckNameDialog::done(int result)
{
    const auto name = toUtf8(onOneLine(m_name->text()));
    m_name->clear();
    QDialog::done(result);
    if (result == Accepted)
        m_confirmed(name);
}

} // namespace cuebright
