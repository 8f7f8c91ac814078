#pragma once

#include <QtCore/QString>

/// Installs the program's texts, and the toolkit's where the system has them, in the language of the code ("de",
/// "fr_CA"), or in the session's when the code is empty. The texts in the sources are English and stand where there is
/// no translation. False when there is none for the code. Wants the application object, before the first window.
bool installLanguage(const QString &code);
