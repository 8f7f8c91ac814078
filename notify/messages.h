#pragma once

class QDialog;
class QString;
class QWidget;

/// The main window's message boxes.
namespace Messages {

/// Shows an error, as plain text, and waits for the user.
void showError(QWidget *parent, const QString &text);

/// Shows the program's version and where its log is, and waits for the user. True when asked for setting up the connection.
bool showAbout(QWidget *parent);

/// Asks whether to end the program, and waits for the answer.
bool askToQuit(QWidget *parent);

/// Shows that the Dispatcher refused the log-in. Modal, yet without an event loop of its own: the messages behind the
/// refusal are still processed. The box deletes itself when closed.
QDialog *openRefusal(QWidget *parent);

} // namespace Messages
