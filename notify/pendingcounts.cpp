#include "pendingcounts.h"

#include "eventsmodel.h"

#include <notify/events/eventslist.h>
#include <ui/svgicon.h>

#include <QtCore/QLocale>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QToolButton>

#include <utility>

namespace {

constexpr QSize kIconSize(16, 16);

} // namespace

PendingCounts::PendingCounts(QWidget *parent)
    : QWidget(parent)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    addKind(ErrorPending, "itemError");
    addKind(WarningPending, "itemWarning");
    addKind(SuccessPending, "itemCompleted");
    addKind(OtherPending, "service");
}

void PendingCounts::addKind(PendingLevel level, const char *name)
{
    auto *button = new QToolButton(this);
    button->setObjectName(QStringLiteral("pending_") + QLatin1String(name));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setIconSize(kIconSize);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->hide();
    layout()->addWidget(button);
    m_kinds.push_back({level, button, 0});
    connect(button, &QToolButton::clicked, this, [this, level](bool alone) {
        if (m_model)
            m_model->showLevel(alone ? level : NothingPending);
    });
}

void PendingCounts::follow(const EventsList &events, EventsModel &model)
{
    m_events = &events;
    m_model = &model;
    for (const auto change : {&EventsList::appended, &EventsList::rebuilt})
        connect(&events, change, this, &PendingCounts::recount);
    connect(&events, &EventsList::acknowledged, this, &PendingCounts::recount);
    connect(&model, &EventsModel::rearranged, this, &PendingCounts::recount);
}

void PendingCounts::showEvent(QShowEvent *event)
{
    if (!std::exchange(m_hasIcons, true))
        drawIcons();
    recount();
    QWidget::showEvent(event);
}

void PendingCounts::drawIcons()
{
    for (const Kind &kind : m_kinds)
        kind.button->setIcon(
            svgIcon(kind.button->objectName().replace(QLatin1String("pending_"), QLatin1String(":/icons/"))));
}

void PendingCounts::recount()
{
    // Hidden, nobody reads them: texts are laid out when they are looked at.
    if (!m_events || !isVisible())
        return;
    for (Kind &kind : m_kinds) {
        count(kind, m_events->standingOut(kind.level));
        kind.button->setChecked(m_model->level() == kind.level);
        // The one that is chosen stays, or there would be no way back.
        kind.button->setVisible(kind.count > 0 || kind.button->isChecked());
    }
}

void PendingCounts::count(Kind &kind, int number)
{
    if (std::exchange(kind.count, number) == number)
        return;
    kind.button->setText(QLocale::system().toString(number));
    const QString words = description(kind.level, number);
    kind.button->setAccessibleName(words);
    kind.button->setToolTip(tr("%1. Click to see these alone, again to see all").arg(words));
}

QString PendingCounts::description(PendingLevel level, int number)
{
    const QString shown = QLocale::system().toString(number);
    switch (level) {
    case ErrorPending:
        return tr("Pending errors: %1").arg(shown);
    case WarningPending:
        return tr("Pending warnings: %1").arg(shown);
    case SuccessPending:
        return tr("Pending successes: %1").arg(shown);
    default:
        return tr("Pending service events: %1").arg(shown);
    }
}
