#include "qskinneddialog.h"

#include "headerbutton.h"
#include "managedwindow.h"
#include "plaintext.h"
#include "product.h"
#include "qheaderlabel.h"
#include "qskinneddialogborder.h"
#include "qskinneddialogheader.h"
#include "qskinnedmessagebox.h"
#include "windowplacement.h"
#include "windowshadow.h"

#include <QtCore/QSettings>
#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>

namespace {

constexpr int kHeaderMargin = 3;
constexpr auto kRectKey = "rect";

QString settingsGroup(const QString &name)
{
    return QStringLiteral("dialogsSizes/") + name;
}

struct Cell {
    int row;
    int column;
    int rows;
};

// In the order of QSkinnedDialogBorder::Position. The side borders reach along the header and the content.
constexpr std::array<Cell, QSkinnedDialogBorder::kCount> kBorderCells{
    {{0, 1, 1}, {3, 1, 1}, {1, 0, 2}, {1, 2, 2}, {0, 0, 1}, {0, 2, 1}, {3, 0, 1}, {3, 2, 1}}};

} // namespace

QSkinnedDialog::QSkinnedDialog(QWidget *parent, bool resizable)
    : QDialog(parent)
    , m_content(new QDialog)
    , m_name(tr("defaultSkinnedDialog"))
    , m_resizable(resizable)
{
    m_content->installEventFilter(this);
}

QSkinnedDialog::~QSkinnedDialog()
{
    // It has no parent until the frame is built.
    delete m_content;
}

void QSkinnedDialog::setShowSetSize(bool show)
{
    m_showSetSize = show;
    if (m_setSizeButton)
        m_setSizeButton->setVisible(show);
}

void QSkinnedDialog::setShowRefresh(bool show)
{
    m_showRefresh = show;
    if (m_refreshButton)
        m_refreshButton->setVisible(show);
}

void QSkinnedDialog::setEscapeCloses(bool closes)
{
    m_escapeCloses = closes;
    if (m_closeButton)
        m_closeButton->setEnabled(closes);
}

void QSkinnedDialog::setBorderWidth(int width)
{
    m_borderWidth = qMax(0, width);
    if (m_header)
        applyBorderWidth();
}

void QSkinnedDialog::setTitle(const QString &text)
{
    const QString title = shortened(text);
    m_content->setWindowTitle(title);
    if (m_headerLabel)
        m_headerLabel->setText(title);
    // Task bars and screen readers show this one, whether or not a header does.
    setWindowTitle(title);
}

void QSkinnedDialog::buildFrame()
{
    if (layout())
        return;
    auto *grid = new QGridLayout(this);
    grid->setSpacing(0);
    grid->setContentsMargins(0, 0, 0, 0);
    if (m_skinned) {
        takeOverModality();
        setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
        buildHeader();
        placeBorders(grid);
        applyBorderWidth();
        grid->addWidget(m_header, 1, 1);
    }
    grid->addWidget(m_content, 2, 1);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(1, 1);
    if (!m_content->windowTitle().isEmpty())
        setWindowTitle(m_content->windowTitle());
}

void QSkinnedDialog::takeOverModality()
{
    // A dialog that was made modal itself, by exec() for one, stays so.
    if (m_content->windowModality() == Qt::NonModal)
        return;
    setWindowModality(m_content->windowModality());
    m_content->setWindowModality(Qt::NonModal);
}

void QSkinnedDialog::buildHeader()
{
    m_header = new QSkinnedDialogHeader(this);
    auto *row = new QHBoxLayout(m_header);
    row->setSpacing(0);
    row->setContentsMargins(kHeaderMargin, kHeaderMargin, kHeaderMargin, kHeaderMargin);
    m_headerLabel = new QHeaderLabel(m_content->windowTitle(), m_header);
    row->addWidget(m_headerLabel, 1);

    m_refreshButton = addHeaderButton(QStringLiteral("refresh.png"), tr("Refresh"));
    m_setSizeButton = addHeaderButton(QStringLiteral("setsize.png"), tr("Set default size and position"));
    m_closeButton = addHeaderButton(QStringLiteral("close.png"), tr("Close"));
    m_refreshButton->setVisible(m_showRefresh);
    m_setSizeButton->setVisible(m_showSetSize);
    m_closeButton->setEnabled(m_escapeCloses);
    connect(m_closeButton, &QPushButton::clicked, this, &QSkinnedDialog::mayClose);
    connect(m_setSizeButton, &QPushButton::clicked, this, &QSkinnedDialog::setDefaults);
    connect(m_refreshButton, &QPushButton::clicked, this, &QSkinnedDialog::setRefresh);
}

QPushButton *QSkinnedDialog::addHeaderButton(const QString &image, const QString &name)
{
    auto *button = new HeaderButton(QStringLiteral(":/Wins/Resources/wins/") + image, name, m_header);
    m_header->layout()->addWidget(button);
    return button;
}

void QSkinnedDialog::placeBorders(QGridLayout *grid)
{
    for (size_t i = 0; i < m_borders.size(); ++i) {
        m_borders[i] = new QSkinnedDialogBorder(static_cast<QSkinnedDialogBorder::Position>(i), this);
        const Cell &cell = kBorderCells[i];
        grid->addWidget(m_borders[i], cell.row, cell.column, cell.rows, 1);
    }
}

void QSkinnedDialog::applyBorderWidth()
{
    for (QSkinnedDialogBorder *border : m_borders)
        border->setThickness(m_borderWidth);
}

void QSkinnedDialog::setVisible(bool visible)
{
    if (visible && !isVisible()) {
        buildFrame();
        approachParent();
    }
    QDialog::setVisible(visible);
}

// A native window made on the first screen and moved onto one of another scale would be scaled twice: where QDialog
// will centre it on its parent's, it is to be made there.
void QSkinnedDialog::approachParent()
{
    if (testAttribute(Qt::WA_Moved) || internalWinId() || !parentWidget())
        return;
    if (!testAttribute(Qt::WA_Resized)) {
        adjustSize();
        setAttribute(Qt::WA_Resized, false);
    }
    QRect place = rect();
    place.moveCenter(parentWidget()->window()->geometry().center());
    move(place.topLeft());
    setAttribute(Qt::WA_Moved, false);
}

void QSkinnedDialog::mayClose()
{
    if (windowModality() != Qt::NonModal)
        reject();
    else
        close();
}

void QSkinnedDialog::setDefaults()
{
    setDefaultState(true);
}

void QSkinnedDialog::setRefresh()
{
    Q_EMIT refresh();
}

void QSkinnedDialog::setDefaultState(bool showPopup)
{
    if (showPopup) {
        // A dialog that goes while it asks takes the question with it: that is no yes either.
        const auto answer = QSkinnedMessageBox::question(
            this, product::kProductTitle,
            tr("Are you sure you want to set the default size and position for this dialog ?"),
            QMessageBox::Yes | QMessageBox::No);
        if (answer != QMessageBox::Yes)
            return;
    }
    QSettings settings;
    settings.beginGroup(settingsGroup(m_name));
    settings.setValue(QLatin1String(kRectKey), geometry());
}

void QSkinnedDialog::loadDefaultState()
{
    QSettings settings;
    settings.beginGroup(settingsGroup(m_name));
    const QRect rect = settings.value(QLatin1String(kRectKey)).toRect();
    if (rect.isValid())
        setGeometry(fittedToScreens(rect));
}

bool QSkinnedDialog::event(QEvent *event)
{
    keepManaged(this, event);
    // The event also comes when the native window goes.
    if (event->type() == QEvent::WinIdChange && internalWinId()) {
        windowHandle()->installEventFilter(this);
        addDropShadow(this);
    }
    return QDialog::event(event);
}

bool QSkinnedDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_content && event->type() == QEvent::KeyPress) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Escape) {
            escapePressed(key);
            return true;
        }
    }
    if (watched == windowHandle() && event->type() == QEvent::Expose && !m_askedPosition.isNull())
        QTimer::singleShot(0, this, &QSkinnedDialog::settlePosition);
    return QDialog::eventFilter(watched, event);
}

void QSkinnedDialog::keyPressEvent(QKeyEvent *event)
{
    // Reached when nothing in the content has the focus.
    if (event->key() == Qt::Key_Escape)
        escapePressed(event);
    else
        QDialog::keyPressEvent(event);
}

void QSkinnedDialog::escapePressed(QKeyEvent *event)
{
    event->accept();
    if (m_escapeCloses)
        mayClose();
}

void QSkinnedDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    const QRect fitted = fittedToScreens(geometry());
    if (fitted != geometry())
        setGeometry(fitted);
    m_askedPosition = geometry().topLeft();
}

// On X11 a window manager that puts a frameless window where it was asked to need not tell it so. Qt, which looks while
// the manager is still at work, may then believe the window at the origin, and menus would open there. Once it is in
// sight, asking for the place again brings an answer.
void QSkinnedDialog::settlePosition()
{
    const QPoint asked = pos().isNull() ? m_askedPosition : pos();
    m_askedPosition = {};
    if (isVisible() && windowHandle()->position().isNull())
        windowHandle()->setPosition(asked);
}
