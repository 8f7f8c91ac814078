#include "windowmemory.h"

#include <notify/settings/settingsstore.h>
#include <ui/windowplacement.h>

#include <QtCore/QSettings>
#include <QtWidgets/QWidget>

namespace {

const QString kRectKey = QStringLiteral("eventsWindow/rect");

} // namespace

void WindowMemory::takeUp()
{
    if (m_rect.isNull())
        m_rect = QSettings().value(kRectKey).toRect();
    const QMargins frame = frameOf(m_window);
    const QRect wanted = m_rect.isValid() ? m_rect : m_window.geometry();
    const QRect fitted = fittedToScreens(wanted.marginsAdded(frame)).marginsRemoved(frame);
    if (fitted != m_window.geometry())
        m_window.setGeometry(fitted);
    m_rect = fitted;
}

void WindowMemory::save()
{
    const bool isPlain = !m_window.isMinimized() && !m_window.isMaximized() && !m_window.isFullScreen();
    const QRect rect = isPlain ? m_window.geometry() : m_window.normalGeometry();
    if (!rect.isValid() || rect == m_rect)
        return;
    m_rect = rect;
    saveAside(kRectKey, rect);
}
