#pragma once

#include <QDialog>

#include <functional>
#include <string>
#include <string_view>

class QLineEdit;

namespace cuebright {

/// A sheet that asks for the name of a deck.
class DeckNameDialog final : public QDialog {
public:
    struct Texts {
        QString title;
        QString message;
        QString confirm;
    };

    static Texts newDeck();
    static Texts renameDeck();

    /// `confirmed` gets the name on one line; it may be blank.
    DeckNameDialog(const Texts& texts, std::function<void(const std::string& name)> confirmed, QWidget* parent);

    /// Opens the sheet with `name` to edit. An open sheet keeps what has been typed.
    void ask(std::string_view name);

protected:
    void done(int result) override;

private:
    std::function<void(const std::string&)> m_confirmed;
    QLineEdit* m_name;
};

} // namespace cuebright
