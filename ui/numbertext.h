#pragma once

#include <QtGui/QDoubleValidator>

#include <optional>

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
