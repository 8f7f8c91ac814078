#pragma once

class QString;
class QWidget;

namespace Ui {
class ImageViewerClass;
}

// What the viewer looks like beside the desktop's own colours and sizes.

/// The size of texts: a step smaller than in the other windows, and following it, so that the room is left to the picture.
/// A sheet, since under one for the whole program a widget's font does not reach its children.
QString textSheet();
/// Gives the buttons icons in place of their texts, which stay their names.
void giveIcons(const Ui::ImageViewerClass &form);
/// Brings all icons within a widget to the height of its text.
void sizeIcons(const QWidget &around);
