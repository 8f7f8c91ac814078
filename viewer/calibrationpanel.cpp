#include "calibrationpanel.h"

#include "calibrationrow.h"

#include <QtCore/QEvent>
#include <QtWidgets/QGridLayout>

#include <cmath>
#include <tuple>

namespace {

constexpr int kSpacing = 3;

using Kind = CalibrationRow::Kind;

struct Description {
    const char *name;
    const char *title;
    Kind kind;
    float neutral;
};

enum Index {
    InputGamma,
    OutputGamma,
    Brightness,
    Saturation,
    Contrast,
    InputLevelStart,
    InputLevelEnd,
    OutputLevelStart,
    OutputLevelEnd,
    SoftClip
};

// In the order of Index.
constexpr std::array<Description, 10> kDescriptions{
    {{"inputGamma", QT_TRANSLATE_NOOP("CalibrationPanel", "Input gamma"), Kind::Gamma, 1.0F},
     {"outputGamma", QT_TRANSLATE_NOOP("CalibrationPanel", "Output gamma"), Kind::Gamma, 1.0F},
     {"brightness", QT_TRANSLATE_NOOP("CalibrationPanel", "Brightness"), Kind::Plain, 1.0F},
     {"saturation", QT_TRANSLATE_NOOP("CalibrationPanel", "Saturation"), Kind::Plain, 1.0F},
     {"contrast", QT_TRANSLATE_NOOP("CalibrationPanel", "Contrast"), Kind::Plain, 1.0F},
     {"inputLevelStart", QT_TRANSLATE_NOOP("CalibrationPanel", "Input level start"), Kind::Level, 0.0F},
     {"inputLevelEnd", QT_TRANSLATE_NOOP("CalibrationPanel", "Input level end"), Kind::Level, 1.0F},
     {"outputLevelStart", QT_TRANSLATE_NOOP("CalibrationPanel", "Output level start"), Kind::Level, 0.0F},
     {"outputLevelEnd", QT_TRANSLATE_NOOP("CalibrationPanel", "Output level end"), Kind::Level, 1.0F},
     {"softClip", QT_TRANSLATE_NOOP("CalibrationPanel", "Soft clip"), Kind::Plain, 0.0F}}};

} // namespace

CalibrationPanel::CalibrationPanel(QWidget *parent)
    : QWidget(parent)
{
    static_assert(std::tuple_size_v<decltype(m_rows)> == kDescriptions.size());
    auto *grid = new QGridLayout(this);
    grid->setSpacing(kSpacing);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const Description &description = kDescriptions[i];
        m_rows[i] =
            new CalibrationRow(QString::fromLatin1(description.name), description.kind, *grid, int(i));
        m_rows[i]->enter(description.neutral);
        connect(m_rows[i], &CalibrationRow::edited, this, [this, i] { announce(i); });
    }
    retranslate();
}

Calibration CalibrationPanel::calibration() const
{
    const auto value = [this](Index index) { return m_rows[index]->value(); };
    return {value(OutputGamma),      value(Brightness),      value(Saturation),
            value(Contrast),         value(InputLevelStart), value(InputLevelEnd),
            value(OutputLevelStart), value(OutputLevelEnd),  value(SoftClip)};
}

float CalibrationPanel::inputGamma() const
{
    return m_rows[InputGamma]->value();
}

QStringList CalibrationPanel::names()
{
    QStringList names;
    for (const Description &description : kDescriptions)
        names += QString::fromLatin1(description.name);
    return names;
}

bool CalibrationPanel::setValue(const QString &name, float value)
{
    const qsizetype index = names().indexOf(name);
    if (index < 0 || !std::isfinite(value))
        return false;
    m_rows[std::size_t(index)]->enter(value);
    announce(std::size_t(index));
    return true;
}

void CalibrationPanel::reset(float inputGamma)
{
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        m_rows[i]->enter(kDescriptions[i].neutral);
    m_rows[InputGamma]->enter(inputGamma);
    announce(InputGamma);
    announce(OutputGamma);
}

void CalibrationPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::FontChange)
        retranslate();
    QWidget::changeEvent(event);
}

void CalibrationPanel::retranslate()
{
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        m_rows[i]->setTitle(tr(kDescriptions[i].title));
}

void CalibrationPanel::announce(std::size_t index)
{
    if (index == InputGamma)
        Q_EMIT inputGammaChanged(inputGamma());
    else
        Q_EMIT calibrationChanged(calibration());
}
