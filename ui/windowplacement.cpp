#include "windowplacement.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace {

// What has to be in sight for the mouse to take hold of a header.
constexpr QSize kGrasp{40, 20};
// As high as a header: those of all windows stay in sight.
constexpr QPoint kShift{24, 24};
// Of a frame that is not known yet.
constexpr QMargins kUsualFrame{5, 30, 5, 10};
// Beyond any desktop, and safe to add and subtract.
constexpr int kFarthest = 1 << 24;

QRect withinReason(const QRect &rect)
{
    const auto bounded = [](int value) { return std::clamp(value, -kFarthest, kFarthest); };
    return {QPoint(bounded(rect.left()), bounded(rect.top())),
            QPoint(bounded(rect.right()), bounded(rect.bottom()))};
}

bool graspable(const QRect &window, const QRect &area)
{
    const QSize needed = kGrasp.boundedTo(window.size());
    const QRect visible = QRect(window.topLeft(), QSize(window.width(), needed.height())) & area;
    return visible.width() >= needed.width() && visible.height() >= needed.height();
}

qint64 overlap(const QRect &a, const QRect &b)
{
    const QRect common = a & b;
    return common.isEmpty() ? 0 : qint64{common.width()} * common.height();
}

// The area that shows most of the window, or, out of sight of all, the one nearest to it.
QRect homeOf(const QRect &window, const QList<QRect> &areas)
{
    QRect best = areas.first();
    for (const QRect &area : areas) {
        const qint64 gained = overlap(window, area) - overlap(window, best);
        const int nearer = (best.center() - window.center()).manhattanLength()
            - (area.center() - window.center()).manhattanLength();
        if (gained > 0 || (gained == 0 && nearer > 0))
            best = area;
    }
    return best;
}

} // namespace

bool compositorPlacesWindows()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

QRect fittedToAreas(const QRect &wanted, const QList<QRect> &areas)
{
    if (areas.isEmpty())
        return wanted;
    QRect window = withinReason(wanted);
    const QRect home = homeOf(window, areas);
    const bool tooLarge = window.width() > home.width() || window.height() > home.height();
    if (!tooLarge && std::any_of(areas.begin(), areas.end(), [&](const QRect &area) {
            return graspable(window, area);
        }))
        return window;
    window.setSize(window.size().boundedTo(home.size()));
    window.moveLeft(std::clamp(window.left(), home.left(), home.right() - window.width() + 1));
    window.moveTop(std::clamp(window.top(), home.top(), home.bottom() - window.height() + 1));
    return window;
}

QPoint cascaded(const QRect &last, QSize size, const QRect &area)
{
    QRect next(last.topLeft() + kShift, size);
    if (next.right() > area.right())
        next.moveLeft(area.left());
    if (next.bottom() > area.bottom())
        next.moveTop(area.top());
    return next.topLeft() == last.topLeft() ? last.topLeft() + kShift : next.topLeft();
}

QMargins frameOf(const QWidget &window)
{
    const QRect frame = window.frameGeometry();
    const QRect inner = window.geometry();
    if (frame == inner)
        return kUsualFrame;
    return {inner.left() - frame.left(), inner.top() - frame.top(), frame.right() - inner.right(),
            frame.bottom() - inner.bottom()};
}

QRect fittedToScreens(const QRect &wanted)
{
    QList<QRect> areas;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens)
        areas.append(screen->availableGeometry());
    return fittedToAreas(wanted, areas);
}

QWidget *shownParent(QWidget *parent)
{
    return parent && parent->window()->isVisible() ? parent : nullptr;
}
