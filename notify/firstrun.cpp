#include "firstrun.h"

#include "connectiontest.h"
#include "fieldchecks.h"
#include "ui_firstrun.h"

#include <ui/numbertext.h>
#include <ui/svgicon.h>
#include <ui/windowplacement.h>

#include <QtGui/QAccessible>
#include <QtGui/QScreen>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace {

/// Characters in a line that reads well.
constexpr int kLineLength = 72;

} // namespace

FirstRun::FirstRun(const LinkSettings &current, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::FirstRunClass>())
    , m_current(current)
    , m_checks(new FieldChecks(this))
    , m_test(new ConnectionTest(this))
{
    m_ui->setupUi(this);
    m_ui->setupButtons->button(QDialogButtonBox::Ok)->setText(tr("&Connect"));
    m_ui->setupButtons->button(QDialogButtonBox::Cancel)->setText(tr("&Later"));
    m_ui->setupAddress->setText(current.address);
    m_ui->setupAddress->selectAll();
    m_ui->setupPort->setText(QString::number(current.port));
    m_ui->setupUser->setText(current.user);
    m_ui->setupPassword->setText(current.password);
    m_checks->watch(m_ui->setupAddress, &FieldChecks::checkAddress);
    m_checks->watch(m_ui->setupPort, &FieldChecks::checkPort);
    // Two lines, so that nothing moves when the result comes.
    m_ui->testResult->setMinimumHeight(2 * fontMetrics().lineSpacing());
    explainIcons();
    connect(m_ui->testButton, &QPushButton::clicked, this, &FirstRun::test);
    connect(m_test, &ConnectionTest::stageChanged, this, &FirstRun::showTest);
}

FirstRun::~FirstRun() = default;

void FirstRun::explainIcons()
{
    addIcons({{"mainIcon", tr("connected")},
              {"connectingIcon", tr("connecting")},
              {"unconnectedIcon", tr("not connected")}},
             0);
    addIcons({{"itemError", tr("completed with errors")},
              {"itemWarning", tr("completed with warnings")},
              {"itemCompleted", tr("completed")},
              {"service", tr("service activity or alert")}},
             2);
}

void FirstRun::addIcons(const QList<std::pair<const char *, QString>> &icons, int column)
{
    const int size = fontMetrics().height() * 3 / 2;
    int row = 0;
    for (const auto &[name, meaning] : icons) {
        const QIcon icon = svgIcon(QStringLiteral(":/icons/") + QLatin1String(name));
        auto *picture = new QLabel(this);
        picture->setPixmap(icon.pixmap(QSize(size, size), devicePixelRatio()));
        picture->setAccessibleName(meaning);
        m_ui->iconsLayout->addWidget(picture, row, column);
        m_ui->iconsLayout->addWidget(new QLabel(meaning, this), row, column + 1);
        ++row;
    }
}

void FirstRun::accept()
{
    if (!canTakeFields())
        return;
    const LinkSettings wanted = link();
    QDialog::accept();
    Q_EMIT connectRequested(wanted);
}

bool FirstRun::canTakeFields()
{
    QLineEdit *marked = m_checks->firstMarked();
    if (marked)
        FieldChecks::pointOut(marked);
    return !marked;
}

LinkSettings FirstRun::link() const
{
    LinkSettings typed = m_current;
    typed.address = m_ui->setupAddress->text();
    typed.port = plainNumber(m_ui->setupPort->text()).toInt();
    typed.user = m_ui->setupUser->text();
    typed.password = m_ui->setupPassword->text();
    return typed;
}

void FirstRun::test()
{
    if (canTakeFields())
        m_test->start(link());
}

void FirstRun::showTest()
{
    m_ui->testResult->setText(m_test->words());
    QAccessibleEvent told(m_ui->testResult, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

void FirstRun::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        takePlace();
    QDialog::showEvent(event);
}

void FirstRun::takePlace()
{
    PageArea::settleSizes(*this);
    const QRect available = screen()->availableGeometry();
    const QSize least = sizeHint();
    const QSize contents = m_ui->setupContents->sizeHint();
    const int width = std::max(least.width(), kLineLength * fontMetrics().averageCharWidth());
    const int extra = width - least.width();
    const int height =
        least.height() - contents.height() + m_ui->setupContents->heightForWidth(contents.width() + extra);
    resize(QSize(width, height).boundedTo(available.size().shrunkBy(frameOf(*this))));
    // The main window mostly hides in the tray: then there is nothing to come up over.
    if (!parentWidget() || !parentWidget()->isVisible())
        move(available.center() - rect().center());
}
