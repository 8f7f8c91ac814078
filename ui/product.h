#pragma once

#include <QtCore/QString>

/// What the program calls itself: in titles, in the settings store and on the splash.
namespace product {

/// The build defines the version.
inline const QString kVersion = QStringLiteral(TARROW_VERSION);
inline const QString kProductTitle = QStringLiteral("Tarrow " TARROW_VERSION);
inline const QString kBuildNumber = QStringLiteral("11480");
inline const QString kBuildDate = QStringLiteral("Thu Aug 29 15:18:04 2019");

inline const QString kOrganisation = QStringLiteral("Loomwright");
inline const QString kDomain = QStringLiteral("loomwright.example");
/// The backslashes make nested keys in the Windows registry.
inline const QString kApplicationName = QStringLiteral("Tarrow\\9\\Alertor");

} // namespace product
