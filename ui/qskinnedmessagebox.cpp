#include "qskinnedmessagebox.h"

#include "windowplacement.h"

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

#include <array>

struct QSkinnedMessageBox::Message {
    QStyle::StandardPixmap icon;
    QString iconName;
    QString title;
    QString text;
    Buttons buttons;
    Button enter = QMessageBox::NoButton;
};

namespace {

constexpr int kMargin = 14;
constexpr int kSpacing = 12;
// In characters.
constexpr int kComfortableLine = 60;
// Of the screen's work area, so that the buttons stay in sight under any text.
constexpr double kLargestTextShare = 0.6;

struct Choice {
    QMessageBox::StandardButton button;
    const char *caption;
    const char *objectName;
    bool affirmative;
};

// In the order shown, whatever order the caller thinks of.
constexpr std::array<Choice, 5> kChoices{{
    {QMessageBox::Yes, QT_TRANSLATE_NOOP("QSkinnedMessageBox", "&Yes"), "skinnedMessageBoxYes", true},
    {QMessageBox::No, QT_TRANSLATE_NOOP("QSkinnedMessageBox", "&No"), "skinnedMessageBoxNo", false},
    {QMessageBox::Cancel, QT_TRANSLATE_NOOP("QSkinnedMessageBox", "&Cancel"), "skinnedMessageBoxCancel",
     false},
    {QMessageBox::Abort, QT_TRANSLATE_NOOP("QSkinnedMessageBox", "&Abort"), "skinnedMessageBoxAbort", false},
    {QMessageBox::Ok, QT_TRANSLATE_NOOP("QSkinnedMessageBox", "&Ok"), "skinnedMessageBoxOk", true},
}};

// Frameless and on top, as such a box has to be.
constexpr Qt::WindowFlags kBoxFlags =
    Qt::Dialog | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint | Qt::WindowStaysOnTopHint;

// Room for the whole text, in lines of a comfortable length.
QSize sizeOf(QLabel &text)
{
    // The style sheet's font decides it.
    text.ensurePolished();
    const QFontMetrics metrics = text.fontMetrics();
    const int longest = metrics.size(0, text.text()).width();
    const int comfortable = qMin(longest, metrics.averageCharWidth() * kComfortableLine);
    // A little more, for lines are broken at fractions of a pixel.
    const int width = qMax(comfortable, text.minimumSizeHint().width()) + metrics.averageCharWidth();
    return {width, text.heightForWidth(width)};
}

// Shows the whole text where the screen has room for it, and scrolls it where not.
QScrollArea *scrolled(QLabel *text, QWidget *parent)
{
    auto *area = new QScrollArea(parent);
    area->setObjectName(QStringLiteral("skinnedMessageBoxTextArea"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(text);
    area->viewport()->setAutoFillBackground(false);
    text->setAutoFillBackground(false);

    const QSize wanted = sizeOf(*text);
    const QSize largest = (QSizeF(parent->screen()->availableSize()) * kLargestTextShare).toSize();
    const QSize taken = wanted.boundedTo(largest);
    const QSize bars(area->verticalScrollBar()->sizeHint().width(),
                     area->horizontalScrollBar()->sizeHint().height());
    text->resize(wanted);
    area->setFixedSize(taken == wanted ? wanted : taken + bars);
    // A text in full view needs no keys to scroll it.
    area->setFocusPolicy(taken == wanted ? Qt::NoFocus : Qt::StrongFocus);
    return area;
}

} // namespace

QSkinnedMessageBox::QSkinnedMessageBox(QWidget *parent)
    : QSkinnedDialog(parent, false)
    , m_icon(new QLabel(content()))
    , m_text(new QLabel(content()))
    , m_buttons(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("skinnedMessageBox"));
    content()->setObjectName(QStringLiteral("skinnedMessageBoxContent"));
    m_icon->setObjectName(QStringLiteral("skinnedMessageBoxIcon"));
    m_text->setObjectName(QStringLiteral("skinnedMessageBoxText"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void QSkinnedMessageBox::fill(const Message &message)
{
    m_text->setText(message.text);
    buildFrame();
    setTitle(message.title);
    const int iconSize = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    const QIcon icon = QApplication::style()->standardIcon(message.icon, nullptr, this);
    m_icon->setPixmap(icon.pixmap(QSize(iconSize, iconSize), devicePixelRatio()));
    m_icon->setAccessibleName(message.iconName);
    setModal(true);
    setWindowFlags(kBoxFlags);

    auto *column = new QVBoxLayout(content());
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kSpacing);
    auto *row = new QHBoxLayout;
    row->setSpacing(kSpacing);
    row->addWidget(m_icon, 0, Qt::AlignTop);
    row->addWidget(scrolled(m_text, content()), 1, Qt::AlignLeft | Qt::AlignVCenter);
    column->addLayout(row, 1);
    addButtons(message.buttons, message.enter);
}

void QSkinnedMessageBox::addButtons(Buttons buttons, Button enter)
{
    auto *row = new QHBoxLayout;
    row->addStretch();
    QPushButton *focused = nullptr;
    bool affirmed = false;
    for (const Choice &choice : kChoices) {
        if (!buttons.testFlag(choice.button))
            continue;
        auto *button = new QPushButton(tr(choice.caption), content());
        button->setObjectName(QLatin1String(choice.objectName));
        // Enter goes to the button with the focus, see eventFilter().
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, &QSkinnedMessageBox::buttonPressed);
        m_buttons->addButton(button, choice.button);
        row->addWidget(button);
        if (!focused || (choice.affirmative && !affirmed) || choice.button == enter)
            focused = button;
        affirmed = affirmed || choice.affirmative || choice.button == enter;
    }
    row->addStretch();
    static_cast<QVBoxLayout *>(content()->layout())->addLayout(row);
    if (focused)
        focused->setFocus();
}

bool QSkinnedMessageBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == content() && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        QAbstractButton *focused = qobject_cast<QAbstractButton *>(focusWidget());
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && focused) {
            focused->click();
            return true;
        }
    }
    return QSkinnedDialog::eventFilter(watched, event);
}

void QSkinnedMessageBox::buttonPressed()
{
    m_pressed = static_cast<Button>(m_buttons->id(qobject_cast<QAbstractButton *>(sender())));
    accept();
}

QSkinnedMessageBox::Button QSkinnedMessageBox::run(QWidget *parent, const Message &message)
{
    const QPointer<QSkinnedMessageBox> box(new QSkinnedMessageBox(shownParent(parent)));
    box->fill(message);
    box->exec();
    if (!box)
        return QMessageBox::NoButton;
    const Button pressed = box->m_pressed;
    delete box;
    return pressed;
}

QSkinnedMessageBox::Button QSkinnedMessageBox::information(QWidget *parent, const QString &title,
                                                           const QString &text, Buttons buttons)
{
    return run(parent, {QStyle::SP_MessageBoxInformation, tr("Information"), title, text, buttons});
}

QSkinnedMessageBox::Button QSkinnedMessageBox::warning(QWidget *parent, const QString &title,
                                                       const QString &text, Buttons buttons)
{
    return run(parent, {QStyle::SP_MessageBoxWarning, tr("Warning"), title, text, buttons});
}

QSkinnedMessageBox::Button QSkinnedMessageBox::critical(QWidget *parent, const QString &title,
                                                        const QString &text, Buttons buttons)
{
    return run(parent, {QStyle::SP_MessageBoxCritical, tr("Error"), title, text, buttons});
}

QSkinnedMessageBox::Button QSkinnedMessageBox::question(QWidget *parent, const QString &title,
                                                        const QString &text, Buttons buttons)
{
    return run(parent, {QStyle::SP_MessageBoxQuestion, tr("Question"), title, text, buttons});
}

bool QSkinnedMessageBox::confirm(QWidget *parent, const QString &title, const QString &text)
{
    return run(parent,
               {QStyle::SP_MessageBoxQuestion, tr("Question"), title, text,
                QMessageBox::Yes | QMessageBox::No, QMessageBox::No})
        == QMessageBox::Yes;
}
