#pragma once

#include <viewer/imageviewer.h>

#include <QtCore/QList>
#include <QtWidgets/QApplication>

#include <algorithm>

/// Gives the viewers that are open, from left to right.
inline QList<ImageViewer *> openViewers()
{
    QList<ImageViewer *> viewers;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *viewer = qobject_cast<ImageViewer *>(window))
            viewers += viewer;
    }
    std::sort(viewers.begin(), viewers.end(), [](auto *one, auto *other) { return one->x() < other->x(); });
    return viewers;
}
