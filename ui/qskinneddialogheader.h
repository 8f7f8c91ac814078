#pragma once

#include <QtCore/QPoint>
#include <QtWidgets/QLabel>

class QSkinnedDialog;

/// The title bar of a skinned dialog: dragging it moves the dialog unless it is maximised, a double click maximises
/// and restores one that may be resized. The dialog fills it.
class QSkinnedDialogHeader final : public QLabel {
    Q_OBJECT

public:
    explicit QSkinnedDialogHeader(QSkinnedDialog *dialog);

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    QSkinnedDialog *const m_dialog;
    bool m_dragging = false;
    QPoint m_lastMouse;
    QPoint m_dialogPosition;
};
