#pragma once

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>

/// Shows the wait cursor for as long as it stands.
class WaitCursor final {
    Q_DISABLE_COPY_MOVE(WaitCursor)

public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
};
