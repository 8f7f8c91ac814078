#pragma once

#include <QtWidgets/QWidget>

/// A row of controls that goes on in a second line, and a third, where it is not wide enough for all of them. Its children
/// are its items, in the order in which they are made. What is left of a line goes to those that expand, most of it
/// to the first of them, or else before the last item of all.
class FlowRow final : public QWidget {
    Q_OBJECT

public:
    explicit FlowRow(QWidget *parent = nullptr);

protected:
    void childEvent(QChildEvent *event) override;
};
