#include "headerbutton.h"

#include "tintedicon.h"

#include <QtCore/QEvent>

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
    setIcon(tintedIcon(m_drawing, iconSize(), palette().color(QPalette::Active, QPalette::ButtonText)));
}
