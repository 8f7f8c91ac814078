#include "headerbutton.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>

namespace {

constexpr int kHeight = 14;
constexpr int kImageSize = 11;

} // namespace

HeaderButton::HeaderButton(const QString &image, const QString &name, QWidget *parent)
    : QPushButton(parent)
    , m_drawing(image)
{
    // One style rule serves all of them.
    setObjectName(QStringLiteral("skinnedDialogCloseButton"));
    setAccessibleName(name);
    setToolTip(name);
    setIconSize({kImageSize, kImageSize});
    setFocusPolicy(Qt::NoFocus);
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setMaximumHeight(kHeight);
    tint();
}

void HeaderButton::changeEvent(QEvent *event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        tint();
}

void HeaderButton::tint()
{
    QIcon icon;
    for (const qreal ratio : {1.0, 2.0}) {
        QPixmap drawn = m_drawing.pixmap(iconSize(), ratio);
        QPainter painter(&drawn);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(QRect(QPoint(), iconSize()),
                         palette().color(QPalette::Active, QPalette::ButtonText));
        painter.end();
        icon.addPixmap(drawn);
    }
    setIcon(icon);
}
