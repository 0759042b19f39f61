#pragma once

#include <QString>

#include <array>

namespace cuebright {

/// Encodes text so that QTextDocument keeps every character: those that it would treat as paragraph or frame marks (CR,
/// U+2029, U+FDD0, U+FDD1) become invisible placeholders that do not occur in `text`. Offsets do not change.
class DocumentText final {
public:
    explicit DocumentText(QStringView text = {});

    [[nodiscard]] QString encoded(QString text) const;
    /// Encodes typed or pasted text. Line ends become line feeds, and characters used as placeholders become U+FFFD.
    [[nodiscard]] QString encodedInput(QString text) const;
    /// The text of a document's raw text or selection.
    [[nodiscard]] QString decoded(QString documentText) const;

    using Characters = std::array<QChar, 4>;

private:
    Characters m_placeholders;
};

} // namespace cuebright
