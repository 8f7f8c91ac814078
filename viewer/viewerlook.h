#pragma once

class QWidget;

namespace Ui {
class ImageViewerClass;
}

// What the viewer looks like beside the desktop's own colours and sizes.

/// Gives the buttons icons in place of their texts, which stay their names.
void giveIcons(const Ui::ImageViewerClass &form);
/// Brings all icons within a widget to the height of its text.
void sizeIcons(const QWidget &around);
