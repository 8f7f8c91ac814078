#pragma once

#include <QtCore/QString>

class QWidget;

/// Lets the user choose an image among those that the image library reads; opens where the last one was chosen.
/// Empty when nothing was chosen.
QString pickImageFile(QWidget *parent);
