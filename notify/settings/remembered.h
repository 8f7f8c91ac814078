#pragma once

#include <QtCore/QSize>

/// What windows remember from one run to the next. None of it counts as configuring the client.
namespace Remembered {

/// Gives the size that the user left the preferences at; empty before.
QSize preferencesSize();
void setPreferencesSize(QSize size);

/// Tells whether the user put off setting up the connection.
bool isSetupPutOff();
void putOffSetup();

} // namespace Remembered
