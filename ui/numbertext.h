#pragma once

#include <QtGui/QDoubleValidator>

#include <optional>

/// Writes a number that a user typed as C has it: digits of any script become 0 to 9, decimal marks a point, minus signs a
/// hyphen. What is no number stays none.
QString plainNumber(const QString &text);

/// Reads a number that a user typed: with a point or a comma before its decimals, whatever the locale, and without groups of
/// digits. Null for anything else, infinities included.
std::optional<float> readNumber(const QString &text);

/// Lets numbers through as readNumber() reads them.
class NumberValidator final : public QDoubleValidator {
    Q_OBJECT

public:
    NumberValidator(double bottom, double top, int decimals, QObject *parent);

    State validate(QString &text, int &position) const override;
};
