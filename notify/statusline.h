#pragma once

#include <QtWidgets/QWidget>

class LinkHistory;
class PendingCounts;
class QHBoxLayout;
class QIcon;
class QLabel;
class QPushButton;
class StateIcon;
struct LinkReport;

/// Below the list: how the link stands, what is pending, and buttons; above them, when there is any, a line of what the
/// user missed while there was no link.
class StatusLine final : public QWidget {
    Q_OBJECT

public:
    explicit StatusLine(QWidget *parent = nullptr);

    PendingCounts &counts() { return *m_counts; }
    /// Adds a button at the end of the line and takes it over.
    void addButton(QPushButton *button);
    /// Shows the state by this icon and in these words; `canConnect` is whether connecting is a thing to offer.
    void showState(const LinkReport &report, const QIcon &icon, const QString &words, bool canConnect);
    void showHistory(const LinkHistory &history);

Q_SIGNALS:
    void connectRequested();

private:
    StateIcon *m_icon;
    QLabel *m_state;
    QLabel *m_history;
    QPushButton *m_connect;
    PendingCounts *m_counts;
    QHBoxLayout *m_row;
};
