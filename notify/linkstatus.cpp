#include "linkstatus.h"

#include "linkhistory.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace {

/// A label that gives way instead of widening the window.
QLabel *plainLabel(const QString &name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return label;
}

} // namespace

LinkStatus::LinkStatus(QWidget *parent)
    : QWidget(parent)
    , m_state(plainLabel(QStringLiteral("linkState"), this))
    , m_history(plainLabel(QStringLiteral("linkHistory"), this))
    , m_row(new QHBoxLayout)
    , m_connect(new QPushButton(tr("Connect &now"), this))
{
    m_connect->setObjectName(QStringLiteral("connectNow"));
    m_connect->setToolTip(tr("Tries to connect to the Dispatcher at once"));
    m_connect->setAutoDefault(false);
    m_connect->hide();
    m_history->hide();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_state);
    column->addLayout(m_row);
    m_row->addWidget(m_history, 1);
    m_row->addStretch();
    addButton(m_connect);
    connect(m_connect, &QPushButton::clicked, this, &LinkStatus::connectRequested);
}

void LinkStatus::addButton(QPushButton *button)
{
    m_row->addWidget(button);
}

void LinkStatus::showState(const LinkReport &report, const QString &words, bool canConnect)
{
    using State = LinkReport::State;
    m_state->setText(words);
    m_connect->setVisible(canConnect && report.state != State::Connected);
    // An attempt that is under way ends soon: the button stays, or it would flicker.
    m_connect->setEnabled(report.state == State::Waiting || report.state == State::Refused
                          || report.state == State::Idle);
}

void LinkStatus::showHistory(const LinkHistory &history)
{
    m_history->setText(history.latest());
    m_history->setToolTip(history.lines().join(u'\n').toHtmlEscaped());
    m_history->setVisible(!history.latest().isEmpty());
}
