#pragma once

#include <QtWidgets/QWidget>

/// Buttons below each other, in as many columns as its height makes necessary. Its children are its buttons, in the order
/// in which they are made.
class ToolStrip final : public QWidget {
    Q_OBJECT

public:
    explicit ToolStrip(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QList<QWidget *> buttons() const;
    /// Of the largest button, with the gap to the next.
    QSize cell() const;
    void place();
};
