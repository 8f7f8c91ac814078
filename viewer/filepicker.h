#pragma once

#include <QtCore/QString>

class QWidget;

namespace TImageLibrary {
class IImageCore;
}

/// Lets the user choose an image among those that the library reads; opens where the last one was chosen.
/// Empty when nothing was chosen.
QString pickImageFile(QWidget *parent, TImageLibrary::IImageCore *library);
