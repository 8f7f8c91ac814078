#pragma once

#include <QtWidgets/QWidget>

class QAbstractItemView;
class QPushButton;

/// What a list without events shows in their place: what will appear there, and the way to the preferences while there is
/// no link. Lies over the list's viewport.
class EmptyList final : public QWidget {
    Q_OBJECT

public:
    /// The view has its model; it owns this.
    explicit EmptyList(QAbstractItemView *view);

    void offerConfiguring(bool offers);

Q_SIGNALS:
    void configureRequested();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void follow();

    QAbstractItemView *m_view;
    QPushButton *m_configure;
    bool m_offers = true;
};
