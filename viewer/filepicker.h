#pragma once

#include <QtCore/QString>

#include <string>

class QWidget;

namespace TImageLibrary {
class IImageCore;
}

/// Lets the user choose an image among those that the library reads; opens beside the file that is shown, or without one
/// where the last was chosen. Empty when nothing was chosen.
QString pickImageFile(QWidget *parent, TImageLibrary::IImageCore *library, const std::string &shown);
