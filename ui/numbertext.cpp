#include "numbertext.h"

#include <cmath>

namespace {

QString withPoint(QString text)
{
    return text.replace(u',', u'.');
}

} // namespace

std::optional<float> readNumber(const QString &text)
{
    bool isNumber = false;
    const float number = withPoint(text.trimmed()).toFloat(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

NumberValidator::NumberValidator(double bottom, double top, int decimals, QObject *parent)
    : QDoubleValidator(bottom, top, decimals, parent)
{
    setNotation(StandardNotation);
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator);
    setLocale(plain);
}

QValidator::State NumberValidator::validate(QString &text, int &position) const
{
    QString read = withPoint(text);
    return QDoubleValidator::validate(read, position);
}
