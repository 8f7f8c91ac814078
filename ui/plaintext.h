#pragma once

#include <QtCore/QString>

#include <string_view>

// What a farm, a file or a template says may look like markup, have any number of lines, and be megabytes long: these make
// it fit to be shown. The labels that it goes to have to be of plain text.

/// Cuts to the first line, and that to 500 characters; an ellipsis stands for what is left out. Control characters become
/// blanks. Takes no longer for a longer text.
QString shortened(QStringView text);
QString shortened(std::string_view utf8);

/// Escapes a text that would pass for markup where the toolkit guesses, as in tooltips and on the splash screen.
QString keptPlain(const QString &text);

/// Shortened, in lines that fit a screen, and shown as it is whatever it looks like.
QString plainToolTip(QStringView text);
