#pragma once

#include <QtWidgets/QWidget>

class LinkHistory;
class QHBoxLayout;
class QLabel;
class QPushButton;
struct LinkReport;

/// Below the list: a line that tells how the link stands, one of what the user missed while it did not, and buttons.
class LinkStatus final : public QWidget {
    Q_OBJECT

public:
    explicit LinkStatus(QWidget *parent = nullptr);

    /// Adds a button at the end of the lower row and takes it over.
    void addButton(QPushButton *button);
    /// Shows the state in these words; `canConnect` is whether connecting is a thing to offer.
    void showState(const LinkReport &report, const QString &words, bool canConnect);
    void showHistory(const LinkHistory &history);

Q_SIGNALS:
    void connectRequested();

private:
    QLabel *m_state;
    QLabel *m_history;
    QHBoxLayout *m_row;
    QPushButton *m_connect;
};
