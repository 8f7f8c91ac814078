#include "emptylist.h"

#include <QtCore/QEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <utility>

EmptyList::EmptyList(QAbstractItemView *view)
    : QWidget(view->viewport())
    , m_view(view)
    , m_configure(new QPushButton(tr("&Configure"), this))
{
    setObjectName(QStringLiteral("emptyList"));
    m_configure->setObjectName(QStringLiteral("configureButton"));
    m_configure->setToolTip(tr("Opens the preferences: where the Dispatcher is, and who logs in"));
    m_configure->setAutoDefault(false);
    auto *text =
        new QLabel(tr("Nothing has happened yet.\nWhat the farm tells of your jobs appears here."), this);
    text->setAlignment(Qt::AlignCenter);
    text->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    column->addStretch();
    column->addWidget(text);
    column->addWidget(m_configure, 0, Qt::AlignCenter);
    column->addStretch();
    const QAbstractItemModel *model = view->model();
    connect(model, &QAbstractItemModel::rowsInserted, this, &EmptyList::follow);
    connect(model, &QAbstractItemModel::modelReset, this, &EmptyList::follow);
    connect(m_configure, &QPushButton::clicked, this, &EmptyList::configureRequested);
    view->viewport()->installEventFilter(this);
    // It comes up with the view. To show it now would lay it out, and fonts are no part of a start.
    if (model->rowCount() > 0)
        hide();
}

void EmptyList::offerConfiguring(bool offers)
{
    if (std::exchange(m_offers, offers) != offers)
        m_configure->setVisible(offers);
}

bool EmptyList::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(m_view->viewport()->rect());
    return QWidget::eventFilter(object, event);
}

void EmptyList::follow()
{
    setVisible(m_view->model()->rowCount() == 0);
}
