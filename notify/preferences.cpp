#include "preferences.h"

#include "ui_preferences.h"

#include <notify/settings/settings.h>
#include <ui/fieldmark.h>
#include <ui/numbertext.h>
#include <ui/windowplacement.h>

#include <QtCore/QPointer>
#include <QtGui/QScreen>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QFileDialog>

#include <array>
#include <charconv>

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
{
    m_ui->setupUi(this);
    m_ui->imageViewerMode->installEventFilter(this);
    connect(m_ui->dispatcherPort, &QLineEdit::textChanged, this, &preferences::checkPort);
    connect(m_ui->pickImageViewer, &QToolButton::clicked, this, &preferences::selectViewer);
    connect(m_ui->pickErrorSound, &QToolButton::clicked, this, &preferences::selectErrorSound);
    connect(m_ui->pickWarningSound, &QToolButton::clicked, this, &preferences::selectWarningSound);
    connect(m_ui->pickSuccessSound, &QToolButton::clicked, this, &preferences::selectSuccessSound);
    connect(m_ui->pickStartSound, &QToolButton::clicked, this, &preferences::selectStartSound);
    connect(m_ui->pickServiceSound, &QToolButton::clicked, this, &preferences::selectServiceSound);
}

preferences::~preferences() = default;

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
        settings.*field.member = (*m_ui.*field.widget)->text().toULongLong();
    for (const GammaField &field : kGammaFields)
        settings.*field.member = gamma((*m_ui.*field.widget)->text());
    settings.dispatcherPort = m_ui->dispatcherPort->text().toInt();
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

void preferences::checkPort(const QString &text)
{
    constexpr int kLastPort = 65'535;
    const int port = text.toInt();
    const bool isPort = port > 0 && port <= kLastPort;
    markField(m_ui->dispatcherPort, isPort ? QString() : tr("A port is a number from 1 to 65535"));
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
        fitToScreen();
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

void preferences::fitToScreen()
{
    const QScreen *where = parentWidget() ? parentWidget()->screen() : screen();
    resize(size().boundedTo(where->availableSize().shrunkBy(frameOf(*this))));
}
