#pragma once

#include "qskinneddialog.h"

#include <QtWidgets/QMessageBox>

class QButtonGroup;
class QLabel;

/// A modal question or message in the program's own frame. Each function waits for the user and returns the button
/// pressed: Yes, No, Cancel, Abort and Ok are offered in this order, other flags are ignored. NoButton (0) when the
/// box was closed without one, or went away together with its parent. The text is plain text.
class QSkinnedMessageBox final : public QSkinnedDialog {
    Q_OBJECT

public:
    using Button = QMessageBox::StandardButton;
    using Buttons = QMessageBox::StandardButtons;

    static Button information(QWidget *parent, const QString &title, const QString &text, Buttons buttons);
    static Button warning(QWidget *parent, const QString &title, const QString &text, Buttons buttons);
    static Button critical(QWidget *parent, const QString &title, const QString &text, Buttons buttons);
    static Button question(QWidget *parent, const QString &title, const QString &text, Buttons buttons);
    /// Asks for a yes where there is much to lose: Enter says no.
    static bool confirm(QWidget *parent, const QString &title, const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void buttonPressed();

private:
    struct Message;

    explicit QSkinnedMessageBox(QWidget *parent);
    static Button run(QWidget *parent, const Message &message);

    void fill(const Message &message);
    void addButtons(Buttons buttons, Button enter);

    QLabel *m_icon = nullptr;
    QLabel *m_text = nullptr;
    QButtonGroup *m_buttons = nullptr;
    Button m_pressed = QMessageBox::NoButton;
};
