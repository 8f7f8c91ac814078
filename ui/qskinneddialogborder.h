#pragma once

#include <QtCore/QRect>
#include <QtWidgets/QWidget>

class QSkinnedDialog;

/// One of the eight edges and corners of a skinned dialog: dragging it resizes the dialog while the opposite edge or
/// corner stays put. The style sheet paints it by its object name.
class QSkinnedDialogBorder final : public QWidget {
    Q_OBJECT

public:
    enum Position { Top, Bottom, Left, Right, TopLeft, TopRight, BottomLeft, BottomRight };
    static constexpr int kCount = 8;

    QSkinnedDialogBorder(Position position, QSkinnedDialog *dialog);

    Position position() const { return m_position; }
    /// In pixels; a corner is a square of this width.
    void setThickness(int width);

protected:
    void enterEvent(QEnterEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void showCursor();
    void dragTo(QPoint globalPosition, QPoint inside);

    const Position m_position;
    QSkinnedDialog *const m_dialog;
    bool m_dragging = false;
    QPoint m_pressedAt;
    QPoint m_pressedInside;
    QRect m_pressedGeometry;
};
