#pragma once

#include <QCoreApplication>
#include <QString>

/// Where this product is at home, and what it says of itself. A deployment puts its own addresses here.
namespace cuebright::product {

inline constexpr const char* kSupportPage = "https://cuebright.example.org/support";
inline constexpr const char* kSupportMail = "support@cuebright.example.org";
inline constexpr const char* kReleasesPage = "https://cuebright.example.org/releases";

/// Tells two builds of one version apart.
inline constexpr const char* kBuild = "1";

[[nodiscard]] inline QString name() { return QStringLiteral("Cuebright"); }

[[nodiscard]] inline QString tagline() { return QStringLiteral("Cue cards your audience can’t see."); }

[[nodiscard]] inline QString version()
{
    const auto version = QCoreApplication::applicationVersion();
    return version.isEmpty() ? QStringLiteral("1.0.0") : version;
}

[[nodiscard]] inline QString supportMail() { return QLatin1String(kSupportMail); }

/// Opens a new message to the support desk.
[[nodiscard]] inline QString supportMailLink() { return QStringLiteral("mailto:") + supportMail(); }

} // namespace cuebright::product
