#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

constexpr int kPatienceMs = 10000;

/// Runs once, inside the event loop of the next modal dialog that opens.
template <typename Action>
void whenModalOpens(Action action)
{
    auto *poll = new QTimer(qApp);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, action] {
        if (QWidget *modal = QApplication::activeModalWidget()) {
            poll->stop();
            poll->deleteLater();
            // A dialog that nobody answers is closed, so that the test fails instead of standing still.
            QTimer::singleShot(kPatienceMs, modal, &QWidget::close);
            action(modal);
        }
    });
    poll->start(10);
}
