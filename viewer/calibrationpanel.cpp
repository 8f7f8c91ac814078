#include "calibrationpanel.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QDoubleValidator>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSlider>

#include <algorithm>
#include <cmath>

namespace {

constexpr float kHundred = 100.0F;
constexpr double kFieldLimit = 100.0;
constexpr int kDecimals = 2;
// A gamma past the slider's end leaves it in the middle.
constexpr int kGammaEnd = 400;
constexpr int kGammaMiddle = 200;

// How the slider follows the field.
enum class Kind { Gamma, Level, Plain };

struct Description {
    const char *name;
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
constexpr std::array<Description, 10> kDescriptions{{{"inputGamma", Kind::Gamma, 1.0F},
                                                     {"outputGamma", Kind::Gamma, 1.0F},
                                                     {"brightness", Kind::Plain, 1.0F},
                                                     {"saturation", Kind::Plain, 1.0F},
                                                     {"contrast", Kind::Plain, 1.0F},
                                                     {"inputLevelStart", Kind::Level, 0.0F},
                                                     {"inputLevelEnd", Kind::Level, 1.0F},
                                                     {"outputLevelStart", Kind::Level, 0.0F},
                                                     {"outputLevelEnd", Kind::Level, 1.0F},
                                                     {"softClip", Kind::Plain, 0.0F}}};

int sliderValue(Kind kind, float value)
{
    // Text of any length may have been entered; past these limits every slider is at its end anyway.
    const int hundredths = int(std::clamp(value * kHundred, -1e6F, 1e6F));
    switch (kind) {
    case Kind::Gamma:
        return hundredths > kGammaEnd ? kGammaMiddle : std::max(hundredths, 0);
    case Kind::Level:
        return std::clamp(hundredths, 0, int(kHundred));
    default:
        return hundredths;
    }
}

} // namespace

CalibrationPanel::CalibrationPanel(const QWidget &controls, QObject *parent)
    : QObject(parent)
{
    static_assert(kDescriptions.size() == kCount);
    auto *validator = new QDoubleValidator(-kFieldLimit, kFieldLimit, kDecimals, this);
    validator->setLocale(QLocale::c());
    validator->setNotation(QDoubleValidator::StandardNotation);
    for (std::size_t i = 0; i < kCount; ++i) {
        const QString name = QString::fromLatin1(kDescriptions[i].name);
        Value &value = m_values[i];
        value.slider = controls.findChild<QSlider *>(name + QStringLiteral("Slider"));
        value.field = controls.findChild<QLineEdit *>(name + QStringLiteral("Field"));
        value.value = kDescriptions[i].neutral;
        value.field->setValidator(validator);
        writeField(i);
        connect(value.slider, &QSlider::valueChanged, this,
                [this, i](int hundredths) { sliderMoved(i, hundredths); });
        connect(value.field, &QLineEdit::editingFinished, this, [this, i] { fieldEdited(i); });
    }
}

Calibration CalibrationPanel::calibration() const
{
    const auto value = [this](Index index) { return m_values[index].value; };
    return {value(OutputGamma),      value(Brightness),      value(Saturation),
            value(Contrast),         value(InputLevelStart), value(InputLevelEnd),
            value(OutputLevelStart), value(OutputLevelEnd),  value(SoftClip)};
}

float CalibrationPanel::inputGamma() const
{
    return m_values[InputGamma].value;
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
    enter(std::size_t(index), value);
    announce(std::size_t(index));
    return true;
}

void CalibrationPanel::reset(float inputGamma)
{
    for (std::size_t i = 0; i < kCount; ++i)
        enter(i, kDescriptions[i].neutral);
    enter(InputGamma, inputGamma);
    announce(InputGamma);
    announce(OutputGamma);
}

void CalibrationPanel::sliderMoved(std::size_t index, int hundredths)
{
    m_values[index].value = float(hundredths) / kHundred;
    writeField(index);
    announce(index);
}

void CalibrationPanel::fieldEdited(std::size_t index)
{
    bool isNumber = false;
    const float value = m_values[index].field->text().toFloat(&isNumber);
    if (isNumber && value == m_values[index].value)
        return;
    enter(index, isNumber && std::isfinite(value) ? value : m_values[index].value);
    announce(index);
}

void CalibrationPanel::enter(std::size_t index, float value)
{
    m_values[index].value = value;
    const QSignalBlocker blocker(m_values[index].slider);
    m_values[index].slider->setValue(sliderValue(kDescriptions[index].kind, value));
    writeField(index);
}

void CalibrationPanel::writeField(std::size_t index)
{
    m_values[index].field->setText(QString::number(double(m_values[index].value), 'f', kDecimals));
}

void CalibrationPanel::announce(std::size_t index)
{
    if (index == InputGamma)
        Q_EMIT inputGammaChanged(inputGamma());
    else
        Q_EMIT calibrationChanged(calibration());
}
