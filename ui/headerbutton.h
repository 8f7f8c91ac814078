#pragma once

#include <QtWidgets/QPushButton>

/// A small button in a skinned dialog's header. Its picture, drawn in one colour, takes that of the palette's texts.
class HeaderButton final : public QPushButton {
    Q_OBJECT

public:
    /// `image` is a resource; its dense form ("@2x") is found beside it.
    HeaderButton(const QString &image, const QString &name, QWidget *parent);

protected:
    void changeEvent(QEvent *event) override;

private:
    void tint();

    const QIcon m_drawing;
};
