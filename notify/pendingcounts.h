#pragma once

#include <notify/events/eventkind.h>

#include <QtWidgets/QWidget>

#include <vector>

class EventsList;
class EventsModel;
class QToolButton;

/// How many events of each kind stand out in the list, as buttons; each shows those alone until it is clicked again.
class PendingCounts final : public QWidget {
    Q_OBJECT

public:
    explicit PendingCounts(QWidget *parent);

    /// Counts these events, which the model shows; both outlive this.
    void follow(const EventsList &events, EventsModel &model);

protected:
    void showEvent(QShowEvent *event) override;

private:
    struct Kind {
        PendingLevel level;
        QToolButton *button;
        int count;
    };

    void addKind(PendingLevel level, const char *name);
    void drawIcons();
    void recount();
    void count(Kind &kind, int number);
    static QString description(PendingLevel level, int number);

    const EventsList *m_events = nullptr;
    EventsModel *m_model = nullptr;
    std::vector<Kind> m_kinds;
    bool m_hasIcons = false;
};
