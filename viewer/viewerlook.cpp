#include "viewerlook.h"

#include "ui_imageviewer.h"
#include "viewericons.h"

#include <algorithm>

namespace {

constexpr int kSmallestIcon = 16;

} // namespace

void giveIcons(const Ui::ImageViewerClass &form)
{
    form.reloadButton->setIcon(viewerIcon(QStringLiteral("reload")));
    form.fitPixelSize->setIcon(viewerIcon(QStringLiteral("fit"), QStringLiteral("fit-on")));
    form.setPixelSize->setIcon(viewerIcon(QStringLiteral("pixels"), QStringLiteral("pixels-on")));
    form.fullScreen->setIcon(viewerIcon(QStringLiteral("fullscreen")));
    form.calibrationButton->setIcon(viewerIcon(QStringLiteral("panel")));
    form.checkerButton->setIcon(viewerIcon(QStringLiteral("checker")));
    form.compositeButton->setIcon(viewerIcon(QStringLiteral("composite")));
    form.premultipliedButton->setIcon(viewerIcon(QStringLiteral("premultiplied")));
    form.hudButton->setIcon(viewerIcon(QStringLiteral("hud")));
    form.displaySaveAsDefault->setIcon(viewerIcon(QStringLiteral("save")));
    form.goBegin->setIcon(playerIcon(QStringLiteral("first")));
    form.stepBackward->setIcon(playerIcon(QStringLiteral("previous")));
    form.playAndStop->setIcon(playerIcon(QStringLiteral("play")));
    form.stepForward->setIcon(playerIcon(QStringLiteral("next")));
    form.goEnd->setIcon(playerIcon(QStringLiteral("last")));
}

void sizeIcons(const QWidget &around)
{
    const int side = std::max(kSmallestIcon, around.fontMetrics().ascent());
    for (QToolButton *button : around.findChildren<QToolButton *>()) {
        button->setIconSize({side, side});
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred); // as high as its neighbours
    }
}
