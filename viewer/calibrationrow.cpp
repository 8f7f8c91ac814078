#include "calibrationrow.h"

#include <ui/numbertext.h>

#include <QtCore/QLocale>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSlider>

#include <algorithm>

namespace {

constexpr int kHundred = 100;
constexpr double kFieldLimit = 100.0;
constexpr int kDecimals = 2;
constexpr int kSliderWidth = 60;
constexpr int kFieldMargins = 14; // a frame, and room for the cursor

struct Range {
    int lowest;
    int highest;
};

Range sliderRange(CalibrationRow::Kind kind)
{
    switch (kind) {
    case CalibrationRow::Kind::Gamma:
        return {0, 4 * kHundred};
    case CalibrationRow::Kind::Level:
        return {-kHundred, kHundred};
    default:
        return {0, 2 * kHundred};
    }
}

int sliderValue(CalibrationRow::Kind kind, float value)
{
    // Text of any length may have been entered; past these limits every slider is at its end anyway.
    const int hundredths = int(std::clamp(value * float(kHundred), -1e6F, 1e6F));
    switch (kind) {
    case CalibrationRow::Kind::Gamma:
        // A gamma past the slider's end leaves it in the middle.
        return hundredths > sliderRange(kind).highest ? sliderRange(kind).highest / 2 : hundredths;
    case CalibrationRow::Kind::Level:
        return std::max(hundredths, 0);
    default:
        return hundredths;
    }
}

} // namespace

CalibrationRow::CalibrationRow(const QString &name, Kind kind, QGridLayout &grid, int row)
    : QObject(grid.parentWidget())
    , m_kind(kind)
    , m_label(new QLabel(grid.parentWidget()))
    , m_slider(new QSlider(Qt::Horizontal, grid.parentWidget()))
    , m_field(new QLineEdit(grid.parentWidget()))
{
    m_label->setObjectName(name + QStringLiteral("Label"));
    m_label->setBuddy(m_field);
    m_slider->setObjectName(name + QStringLiteral("Slider"));
    m_slider->setMinimumWidth(kSliderWidth);
    m_slider->setRange(sliderRange(kind).lowest, sliderRange(kind).highest);
    m_field->setObjectName(name + QStringLiteral("Field"));
    m_field->setValidator(new NumberValidator(-kFieldLimit, kFieldLimit, kDecimals, m_field));
    grid.addWidget(m_label, row, 0);
    grid.addWidget(m_slider, row, 1);
    grid.addWidget(m_field, row, 2);
    connect(m_slider, &QSlider::valueChanged, this, &CalibrationRow::sliderMoved);
    connect(m_field, &QLineEdit::editingFinished, this, &CalibrationRow::fieldEdited);
}

void CalibrationRow::enter(float value)
{
    m_value = value;
    const QSignalBlocker blocker(m_slider);
    m_slider->setValue(sliderValue(m_kind, value));
    writeField();
}

void CalibrationRow::setTitle(const QString &title)
{
    m_label->setText(tr("%1:").arg(title));
    m_field->setFixedWidth(m_field->fontMetrics().horizontalAdvance(QStringLiteral("-100.00"))
                           + kFieldMargins);
    for (QWidget *control : {static_cast<QWidget *>(m_slider), static_cast<QWidget *>(m_field)}) {
        control->setAccessibleName(title);
        control->setToolTip(title);
    }
}

void CalibrationRow::sliderMoved(int hundredths)
{
    m_value = float(hundredths) / float(kHundred);
    writeField();
    Q_EMIT edited();
}

void CalibrationRow::fieldEdited()
{
    // The field shows fewer digits than the value may have: leaving it changes nothing.
    if (m_field->text() == fieldText())
        return;
    enter(readNumber(m_field->text()).value_or(m_value));
    Q_EMIT edited();
}

QString CalibrationRow::fieldText() const
{
    return QLocale().toString(double(m_value), 'f', kDecimals);
}

void CalibrationRow::writeField()
{
    m_field->setText(fieldText());
}
