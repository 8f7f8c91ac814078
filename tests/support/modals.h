#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

constexpr int kPatienceMs = 10000;

/// Runs once, inside the event loop of the next modal dialog that opens, as soon as the user could answer it: a dialog is
/// modal before it is on the screen, and a click then is lost.
template <typename Action>
void whenModalOpens(Action action)
{
    auto *poll = new QTimer(qApp);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, action] {
        QWidget *modal = QApplication::activeModalWidget();
        if (modal && modal->isActiveWindow()) {
            poll->stop();
            poll->deleteLater();
            // A dialog that nobody answers is closed, so that the test fails instead of standing still.
            QTimer::singleShot(kPatienceMs, modal, &QWidget::close);
            action(modal);
        }
    });
    poll->start(10);
}
