#include "statusline.h"

#include "linkhistory.h"
#include "pendingcounts.h"

#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

/// Draws when it is shown: a label would draw at the start already. The words beside it say the same.
class StateIcon final : public QWidget {
public:
    explicit StateIcon(QWidget *parent)
        : QWidget(parent)
    {
        constexpr int kSize = 18;
        setFixedSize(kSize, kSize);
    }
    void setIcon(const QIcon &icon)
    {
        m_icon = icon;
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        m_icon.paint(&painter, rect());
    }

private:
    QIcon m_icon;
};

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

StatusLine::StatusLine(QWidget *parent)
    : QWidget(parent)
    , m_icon(new StateIcon(this))
    , m_state(plainLabel(QStringLiteral("linkState"), this))
    , m_history(plainLabel(QStringLiteral("linkHistory"), this))
    , m_connect(new QPushButton(tr("Connect &now"), this))
    , m_counts(new PendingCounts(this))
    , m_row(new QHBoxLayout)
{
    m_connect->setObjectName(QStringLiteral("connectNow"));
    m_connect->setToolTip(tr("Tries to connect to the Dispatcher at once"));
    m_connect->setAutoDefault(false);
    m_connect->hide();
    m_history->hide();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_history);
    column->addLayout(m_row);
    m_row->addWidget(m_icon);
    m_row->addWidget(m_state, 1);
    m_row->addWidget(m_connect);
    m_row->addWidget(m_counts);
    connect(m_connect, &QPushButton::clicked, this, &StatusLine::connectRequested);
}

void StatusLine::addButton(QPushButton *button)
{
    m_row->addWidget(button);
}

void StatusLine::showState(const LinkReport &report, const QIcon &icon, const QString &words, bool canConnect)
{
    using State = LinkReport::State;
    m_icon->setIcon(icon);
    m_state->setText(words);
    m_connect->setVisible(canConnect && report.state != State::Connected);
    // An attempt that is under way ends soon: the button stays, or it would flicker.
    m_connect->setEnabled(report.state == State::Waiting || report.state == State::Refused
                          || report.state == State::Idle);
}

void StatusLine::showHistory(const LinkHistory &history)
{
    m_history->setText(history.latest());
    m_history->setToolTip(history.lines().join(u'\n').toHtmlEscaped());
    m_history->setVisible(!history.latest().isEmpty());
}
