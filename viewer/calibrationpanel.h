#pragma once

#include <viewer/widgets/render/calibration.h>

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

#include <array>
#include <cstddef>

class CalibrationRow;

/// The calibration's ten values, a row for each.
class CalibrationPanel final : public QWidget {
    Q_OBJECT

public:
    explicit CalibrationPanel(QWidget *parent = nullptr);

    Calibration calibration() const;
    float inputGamma() const;
    /// Names the values as setValue() takes them.
    static QStringList names();
    /// Returns false when there is no value of that name, or the value is not finite.
    bool setValue(const QString &name, float value);
    /// Makes everything neutral, under the input gamma that the file's format asks for.
    void reset(float inputGamma);

Q_SIGNALS:
    void calibrationChanged(const Calibration &calibration);
    void inputGammaChanged(float inputGamma);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void announce(std::size_t index);

    std::array<CalibrationRow *, 10> m_rows{}; // children
};
