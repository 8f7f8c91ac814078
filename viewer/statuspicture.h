#pragma once

#include <QtWidgets/QLabel>

/// Stands where the picture would, and like that takes the height that is left, whatever its texts would have.
class StatusPanel final : public QWidget {
    Q_OBJECT

public:
    explicit StatusPanel(QWidget *parent = nullptr);

    bool hasHeightForWidth() const override { return false; }
};

/// A label's picture that gets smaller where there is less room than it takes.
class StatusPicture final : public QLabel {
    Q_OBJECT

public:
    explicit StatusPicture(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override { return {0, 0}; }

protected:
    void paintEvent(QPaintEvent *event) override;
};
