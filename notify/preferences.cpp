#include "preferences.h"

#include "fieldchecks.h"
#include "soundplayer.h"
#include "ui_preferences.h"

#include <notify/settings/remembered.h>
#include <notify/settings/settings.h>
#include <system/machine.h>
#include <ui/numbertext.h>
#include <ui/plaintext.h>
#include <ui/tintedicon.h>
#include <ui/windowplacement.h>

#include <QtCore/QLocale>
#include <QtCore/QPointer>
#include <QtGui/QAccessible>
#include <QtGui/QScreen>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QFileDialog>

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace {

using Form = Ui::preferencesClass;

struct CheckBox {
    QCheckBox *Form::*widget;
    bool Settings::*member;
};

struct TextField {
    QLineEdit *Form::*widget;
    QString Settings::*member;
};

struct CacheField {
    QLineEdit *Form::*widget;
    quint64 Settings::*member;
};

struct GammaField {
    QLineEdit *Form::*widget;
    float Settings::*member;
};

struct SoundField {
    QLineEdit *Form::*path;
    QToolButton *Form::*hear;
};

constexpr CheckBox kCheckBoxes[] = {
    {&Form::filterServiceActivities, &Settings::filterServiceActivities},
    {&Form::filterJobStart, &Settings::filterJobStart},
    {&Form::filterJobCompletedWithErrors, &Settings::filterJobCompletedWithErrors},
    {&Form::filterJobCompletedWithWarnings, &Settings::filterJobCompletedWithWarnings},
    {&Form::filterJobCompletedWithSuccess, &Settings::filterJobCompletedWithSuccess},
    {&Form::filterChunkStart, &Settings::filterChunkStart},
    {&Form::filterChunkCompletedWithErrors, &Settings::filterChunkCompletedWithErrors},
    {&Form::filterChunkCompletedWithWarnings, &Settings::filterChunkCompletedWithWarnings},
    {&Form::filterChunkCompletedWithSuccess, &Settings::filterChunkCompletedWithSuccess},
    {&Form::playErrorSound, &Settings::playErrorSound},
    {&Form::playWarningSound, &Settings::playWarningSound},
    {&Form::playSuccessSound, &Settings::playSuccessSound},
    {&Form::playStartSound, &Settings::playStartSound},
    {&Form::playServiceSound, &Settings::playServiceSound},
    {&Form::launchImageViewer, &Settings::launchImageViewer},
    {&Form::showIncompleteFrames, &Settings::viewerShowIncompleteFrames},
    {&Form::readAhead, &Settings::viewerReadAhead},
    {&Form::skipDirectoryAuthentication, &Settings::skipDirectoryAuthentication},
    {&Form::showBubble, &Settings::showBubble},
    {&Form::autoAckOnRaise, &Settings::autoAckOnRaise},
    {&Form::keepAbove, &Settings::keepAbove},
};

constexpr TextField kTextFields[] = {
    {&Form::errorSoundPath, &Settings::errorSound},
    {&Form::warningSoundPath, &Settings::warningSound},
    {&Form::successSoundPath, &Settings::successSound},
    {&Form::startSoundPath, &Settings::startSound},
    {&Form::serviceSoundPath, &Settings::serviceSound},
    {&Form::imageViewer, &Settings::imageViewer},
    {&Form::dispatcherAddress, &Settings::dispatcherAddress},
    {&Form::authenticationUser, &Settings::authenticationUser},
    {&Form::authenticationPassword, &Settings::authenticationPassword},
};

constexpr CacheField kCacheFields[] = {
    {&Form::gpuCacheLimit, &Settings::imageViewerMaxGPUCache},
    {&Form::ramCacheLimit, &Settings::imageViewerMaxRAMCache},
};

constexpr GammaField kGammaFields[] = {
    {&Form::exrImportGamma, &Settings::imageViewerExrImportGamma},
    {&Form::defaultImportGamma, &Settings::imageViewerDefaultImportGamma},
};

constexpr SoundField kSoundFields[] = {
    {&Form::errorSoundPath, &Form::hearErrorSound},     {&Form::warningSoundPath, &Form::hearWarningSound},
    {&Form::successSoundPath, &Form::hearSuccessSound}, {&Form::startSoundPath, &Form::hearStartSound},
    {&Form::serviceSoundPath, &Form::hearServiceSound},
};

constexpr int kNetworkPage = 3;
/// Shown when the preferences opened last; for as long as the program runs.
int lastPage = 0;

/// The fewest digits that read back as the same number.
QString shortest(float number)
{
    std::array<char, 32> digits;
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::general).ptr;
    return QString::fromLatin1(digits.data(), end - digits.data());
}

float gamma(const QString &text)
{
    return readNumber(text).value_or(0.0F);
}

/// As a label on a disk would have it: "1.5 GB".
QString sizeInWords(quint64 bytes)
{
    const auto most = quint64(std::numeric_limits<qint64>::max());
    const QLocale locale = QLocale::system();
    QString words = locale.formattedDataSize(qint64(std::min(bytes, most)), 1, QLocale::DataSizeSIFormat);
    return words.remove(locale.decimalPoint() + locale.zeroDigit());
}

/// What a budget means, of a memory of so many bytes where that is known; nothing for what is no number.
QString budgetInWords(const QString &text, quint64 memory)
{
    bool isNumber = false;
    const quint64 budget = plainNumber(text).toULongLong(&isNumber);
    if (!isNumber)
        return {};
    return memory == 0 ? sizeInWords(budget)
                       : preferences::tr("%1 of %2", "budget, and what the machine has")
                             .arg(sizeInWords(budget), sizeInWords(memory));
}

QString whySilent(SoundFault fault)
{
    switch (fault) {
    case SoundFault::NoFile:
        return preferences::tr("there is no such file");
    case SoundFault::NotPlayable:
        return preferences::tr("it is no WAV file that can be played");
    case SoundFault::NoDevice:
        return preferences::tr("there is no sound device");
    case SoundFault::NoModule:
        return preferences::tr("a part of the program is missing; install it again");
    }
    return {};
}

void pickFile(QLineEdit *field, const QString &filter)
{
    // The dialog, and the chooser with it, may be gone by the time this returns.
    const QPointer<QLineEdit> target = field;
    const QPointer<QFileDialog> chooser =
        new QFileDialog(field->window(), preferences::tr("Select File"), QStringLiteral("/"), filter);
    chooser->setFileMode(QFileDialog::ExistingFile);
    if (chooser->exec() == QDialog::Accepted && chooser && target)
        target->setText(chooser->selectedFiles().value(0));
    delete chooser;
}

void pickSound(QLineEdit *field)
{
    pickFile(field, preferences::tr("Audio Files (*.wav)"));
}

} // namespace

preferences::preferences(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Form>())
    , m_checks(new FieldChecks(this))
    , m_sounds(new SoundPlayer(this))
{
    m_ui->setupUi(this);
    m_ui->imageViewerMode->installEventFilter(this);
    connectPickers();
    connectSounds();
    connectNumbers();
    m_ui->pageList->setCurrentRow(anySettingStored() ? lastPage : kNetworkPage);
}

preferences::~preferences() = default;

void preferences::connectPickers()
{
    connect(m_ui->pickImageViewer, &QToolButton::clicked, this, &preferences::selectViewer);
    connect(m_ui->pickErrorSound, &QToolButton::clicked, this, &preferences::selectErrorSound);
    connect(m_ui->pickWarningSound, &QToolButton::clicked, this, &preferences::selectWarningSound);
    connect(m_ui->pickSuccessSound, &QToolButton::clicked, this, &preferences::selectSuccessSound);
    connect(m_ui->pickStartSound, &QToolButton::clicked, this, &preferences::selectStartSound);
    connect(m_ui->pickServiceSound, &QToolButton::clicked, this, &preferences::selectServiceSound);
}

void preferences::connectSounds()
{
    for (const SoundField &field : kSoundFields) {
        const QLineEdit *path = *m_ui.*field.path;
        QToolButton *button = *m_ui.*field.hear;
        button->setEnabled(false);
        connect(path, &QLineEdit::textChanged, button,
                [button](const QString &text) { button->setEnabled(!text.isEmpty()); });
        connect(button, &QToolButton::clicked, this, [this, path] { hear(path->text()); });
    }
    connect(m_sounds, &SoundPlayer::failed, this, &preferences::tellWhySilent);
}

void preferences::connectNumbers()
{
    m_checks->watch(m_ui->gpuCacheLimit, &FieldChecks::checkBytes);
    m_checks->watch(m_ui->ramCacheLimit, &FieldChecks::checkBytes);
    m_checks->watch(m_ui->exrImportGamma, &FieldChecks::checkGamma);
    m_checks->watch(m_ui->defaultImportGamma, &FieldChecks::checkGamma);
    m_checks->watch(m_ui->dispatcherPort, &FieldChecks::checkPort);
    const auto explain = [](const QLineEdit *budget, QLabel *meaning, quint64 memory) {
        connect(budget, &QLineEdit::textChanged, meaning,
                [=](const QString &text) { meaning->setText(budgetInWords(text, memory)); });
    };
    // How much video memory there is, no driver tells in a way that all share.
    explain(m_ui->gpuCacheLimit, m_ui->gpuCacheMeaning, 0);
    explain(m_ui->ramCacheLimit, m_ui->ramCacheMeaning, Machine::memorySize());
}

std::optional<Settings> preferences::edit(const Settings &current, QWidget *parent)
{
    // The parent may end while the dialog is open.
    const QPointer<preferences> dialog = new preferences(parent);
    dialog->setValues(current);
    std::optional<Settings> edited;
    if (dialog->exec() == QDialog::Accepted && dialog)
        edited = dialog->values(current);
    delete dialog;
    return edited;
}

Settings preferences::values(const Settings &current) const
{
    Settings settings = current;
    for (const CheckBox &box : kCheckBoxes)
        settings.*box.member = (*m_ui.*box.widget)->isChecked();
    for (const TextField &field : kTextFields)
        settings.*field.member = (*m_ui.*field.widget)->text();
    for (const CacheField &field : kCacheFields)
        settings.*field.member = plainNumber((*m_ui.*field.widget)->text()).toULongLong();
    for (const GammaField &field : kGammaFields)
        settings.*field.member = gamma((*m_ui.*field.widget)->text());
    settings.dispatcherPort = plainNumber(m_ui->dispatcherPort->text()).toInt();
    settings.imageViewerMode = m_ui->imageViewerMode->currentIndex();
    return settings;
}

void preferences::setValues(const Settings &settings)
{
    for (const CheckBox &box : kCheckBoxes)
        (*m_ui.*box.widget)->setChecked(settings.*box.member);
    for (const TextField &field : kTextFields)
        (*m_ui.*field.widget)->setText(settings.*field.member);
    for (const CacheField &field : kCacheFields)
        (*m_ui.*field.widget)->setText(QString::number(settings.*field.member));
    for (const GammaField &field : kGammaFields)
        (*m_ui.*field.widget)->setText(shortest(settings.*field.member));
    m_ui->dispatcherPort->setText(QString::number(settings.dispatcherPort));
    // A stored mode that the box does not offer shows as the integrated viewer.
    m_ui->imageViewerMode->setCurrentIndex(settings.imageViewerMode == 1 ? 1 : 0);
}

void preferences::accept()
{
    QLineEdit *marked = m_checks->firstMarked();
    if (!marked)
        return QDialog::accept();
    showField(marked);
    FieldChecks::pointOut(marked);
}

void preferences::done(int result)
{
    lastPage = m_ui->pageList->currentRow();
    if (isVisible() && size() != m_initialSize)
        Remembered::setPreferencesSize(size());
    QDialog::done(result);
}

void preferences::hear(const QString &path)
{
    m_ui->soundTrouble->hide();
    m_sounds->clear();
    m_sounds->play(path);
}

void preferences::tellWhySilent(const QString &path, SoundFault fault)
{
    m_ui->soundTrouble->setText(tr("Cannot play %1: %2").arg(shortened(path), whySilent(fault)));
    m_ui->soundTrouble->show();
    QAccessibleEvent told(m_ui->soundTrouble, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

void preferences::showField(QLineEdit *field)
{
    for (int page = 0; page < m_ui->pages->count(); ++page) {
        auto *area = qobject_cast<PageArea *>(m_ui->pages->widget(page));
        if (!area || !area->isAncestorOf(field))
            continue;
        m_ui->pageList->setCurrentRow(page);
        area->ensureWidgetVisible(field);
    }
}

void preferences::selectViewer()
{
    // Programs have that suffix on Windows alone.
    pickFile(m_ui->imageViewer, tr("Executables (*.exe)") + QStringLiteral(";;") + tr("All files (*)"));
}

void preferences::selectErrorSound()
{
    pickSound(m_ui->errorSoundPath);
}

void preferences::selectWarningSound()
{
    pickSound(m_ui->warningSoundPath);
}

void preferences::selectSuccessSound()
{
    pickSound(m_ui->successSoundPath);
}

void preferences::selectStartSound()
{
    pickSound(m_ui->startSoundPath);
}

void preferences::selectServiceSound()
{
    pickSound(m_ui->serviceSoundPath);
}

void preferences::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        takePlace();
    QDialog::showEvent(event);
}

bool preferences::eventFilter(QObject *object, QEvent *event)
{
    // The wheel that scrolls the options does not change the one that comes under the pointer.
    if (event->type() == QEvent::Wheel && !m_ui->imageViewerMode->hasFocus()) {
        event->ignore();
        return true;
    }
    return QDialog::eventFilter(object, event);
}

void preferences::takePlace()
{
    PageArea::settleSizes(*this);
    const QScreen *where = parentWidget() ? parentWidget()->screen() : screen();
    const QSize remembered = Remembered::preferencesSize();
    const QSize wanted = remembered.isEmpty() ? sizeHint().expandedTo({width(), 0}) : remembered;
    const QSize room = where->availableSize().shrunkBy(frameOf(*this));
    // Where a page needs more than the screen has, it scrolls sideways rather than that the window ends beyond the edge.
    if (minimumSizeHint().width() > room.width()) {
        layout()->setSizeConstraint(QLayout::SetNoConstraint);
        setMinimumSize(0, 0);
    }
    resize(wanted.boundedTo(room));
    m_initialSize = size();
}
