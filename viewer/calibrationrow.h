#pragma once

#include <QtCore/QObject>

class QGridLayout;
class QLabel;
class QLineEdit;
class QSlider;

/// One value of the calibration: a label, a slider that counts hundredths, and a field. Slider and field follow each
/// other; the value is what was entered last in either, and a slider that does not reach it stays behind.
class CalibrationRow final : public QObject {
    Q_OBJECT

public:
    /// The slider's range, and where it stands for a value beyond.
    enum class Kind { Gamma, Level, Plain };

    /// Makes "<name>Label", "<name>Slider" and "<name>Field" in that row of the grid, whose widget owns all four.
    CalibrationRow(const QString &name, Kind kind, QGridLayout &grid, int row);

    float value() const { return m_value; }

    /// Shows a value without edited().
    void enter(float value);
    void setTitle(const QString &title);

Q_SIGNALS:
    /// The user has changed the value.
    void edited();

private:
    void sliderMoved(int hundredths);
    void fieldEdited();
    QString fieldText() const;
    void writeField();

    const Kind m_kind;
    QLabel *m_label = nullptr;
    QSlider *m_slider = nullptr;
    QLineEdit *m_field = nullptr;
    float m_value = 0.0F;
};
