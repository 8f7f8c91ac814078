#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

// The texts in the sources are English and stand where there is no translation. Both functions want the application
// object and come before the first window.

/// Installs the program's texts, and the toolkit's where the system has them, in the language of the code ("de",
/// "fr_CA"), or in the session's when the code is empty. False when there are no texts in it.
bool installLanguage(const QString &code);

/// The same for the first of several languages that there are texts in.
bool installFirstLanguage(const QStringList &codes);
