#pragma once

#include <viewer/widgets/render/calibration.h>

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <array>

class QLineEdit;
class QSlider;
class QWidget;

/// The calibration's ten values, each with a slider that counts hundredths and a field that follow each other.
/// The value is what was entered last in either; a slider that does not reach it stays behind.
class CalibrationPanel final : public QObject {
    Q_OBJECT

public:
    /// `controls` holds a "<name>Slider" and a "<name>Field" for every value, and outlives the panel.
    CalibrationPanel(const QWidget &controls, QObject *parent);

    Calibration calibration() const;
    float inputGamma() const;
    /// Of the values, as setValue() takes them.
    static QStringList names();
    /// False when there is no value of that name.
    bool setValue(const QString &name, float value);
    /// Everything neutral, under the input gamma that the file's format asks for.
    void reset(float inputGamma);

Q_SIGNALS:
    void calibrationChanged(const Calibration &calibration);
    void inputGammaChanged(float inputGamma);

private:
    static constexpr std::size_t kCount = 10;
    struct Value {
        QSlider *slider = nullptr;
        QLineEdit *field = nullptr;
        float value = 0.0F;
    };

    void sliderMoved(std::size_t index, int hundredths);
    void fieldEdited(std::size_t index);
    void enter(std::size_t index, float value);
    void writeField(std::size_t index);
    void announce(std::size_t index);

    std::array<Value, kCount> m_values;
};
