#pragma once

#include <QCoreApplication>
#include <QString>

#include <string>

/// The product's texts and addresses. A deployment puts its own addresses here.
namespace cuebright::product {

inline constexpr const char* kSupportPage = "https://cuebright.example.org/support";
inline constexpr const char* kSupportMail = "support@cuebright.example.org";
inline constexpr const char* kReleasesPage = "https://cuebright.example.org/releases";

[[nodiscard]] inline QString name() { return QStringLiteral("Cuebright"); }

[[nodiscard]] inline QString tagline() { return QStringLiteral("Cue cards your audience can’t see."); }

[[nodiscard]] inline QString versionText()
{
    const auto version = QCoreApplication::applicationVersion();
    return QStringLiteral("Version ") + (version.isEmpty() ? QStringLiteral("1.0.0") : version);
}

/// With the number that distinguishes builds of the same version.
[[nodiscard]] inline QString versionAndBuildText() { return versionText() + QStringLiteral(" (1)"); }

/// Opens a new message to the support desk.
[[nodiscard]] inline std::string supportMailLink() { return std::string("mailto:") + kSupportMail; }

} // namespace cuebright::product
