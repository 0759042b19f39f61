#pragma once

#include <QString>

#include <array>

namespace cuebright {

/// A text in the form in which the toolkit's document keeps every character.
///
/// The document takes some characters for ends of paragraphs and frames; each of them has a stand-in, which `text` does
/// not contain and which shows as nothing. Positions stay the same, so one UTF-16 unit is one unit in either form.
class DocumentText final {
public:
    explicit DocumentText(QStringView text = {});

    /// A text as the document is to keep it.
    [[nodiscard]] QString encoded(QString text) const;
    /// The same for what is typed or pasted, whose lines end with line feeds after this. What happens to be a
    /// stand-in, which means nothing to anybody else, becomes U+FFFD.
    [[nodiscard]] QString encodedInput(QString text) const;
    /// The text behind a document's raw text or selection.
    [[nodiscard]] QString decoded(QString documentText) const;

private:
    std::array<QChar, 4> m_standIns;
};

} // namespace cuebright
