#include "viewerlook.h"

#include "ui_imageviewer.h"
#include "viewericons.h"

#include <QtGui/QFont>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kSmallestPoints = 9;
constexpr double kSmallestPixels = 12;
constexpr double kStep = 0.75; // of the other windows' text
constexpr int kSmallestIcon = 16;

} // namespace

QPalette neutralPalette()
{
    const QColor window(0x2b, 0x2b, 0x2b);
    const QColor text(0xdd, 0xdd, 0xdd);
    QPalette palette(text, QColor(0x3a, 0x3a, 0x3a), QColor(0x5a, 0x5a, 0x5a), QColor(0x1c, 0x1c, 0x1c),
                     QColor(0x76, 0x76, 0x76), text, QColor(0x20, 0x20, 0x20));
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x26, 0x26));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x54, 0x75));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x8c, 0xc4, 0xf5));
    palette.setColor(QPalette::ToolTipBase, QColor(0x45, 0x45, 0x45));
    palette.setColor(QPalette::ToolTipText, QColor(0xf0, 0xf0, 0xf0));
    palette.setColor(QPalette::PlaceholderText, QColor(0xa0, 0xa0, 0xa0));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x7a, 0x7a, 0x7a));
    return palette;
}

QString textSheet()
{
    const QFont font = QApplication::font();
    const bool inPixels = font.pixelSize() > 0;
    const double size = inPixels ? std::max(kSmallestPixels, font.pixelSize() * kStep)
                                 : std::max(kSmallestPoints, font.pointSizeF() * kStep);
    return QStringLiteral("QWidget { font-size: %1%2; }")
        .arg(QString::number(std::round(size)), inPixels ? QStringLiteral("px") : QStringLiteral("pt"));
}

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
