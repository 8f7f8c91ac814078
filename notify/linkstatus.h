#pragma once

#include <QtWidgets/QWidget>

class LinkHistory;
class QLabel;
class QPushButton;
struct LinkReport;

/// The line below the list that tells how the link stands, and what the user missed while it did not.
class LinkStatus final : public QWidget {
    Q_OBJECT

public:
    explicit LinkStatus(QWidget *parent = nullptr);

    /// Shows the state in these words; `canConnect` is whether connecting is a thing to offer.
    void showState(const LinkReport &report, const QString &words, bool canConnect);
    void showHistory(const LinkHistory &history);

Q_SIGNALS:
    void connectRequested();

private:
    QLabel *m_state;
    QLabel *m_history;
    QPushButton *m_connect;
};
