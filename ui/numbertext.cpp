#include "numbertext.h"

#include <cmath>

namespace {

QChar plainSign(QChar sign)
{
    if (sign.category() == QChar::Number_DecimalDigit)
        return QChar(u'0' + sign.digitValue());
    switch (sign.unicode()) {
    case u',':
    case u'\u066B': // Arabic
    case u'\uFF0C': // the wide forms that Japanese input writes, down to its full stop
    case u'\uFF0E':
    case u'\u3002':
        return u'.';
    case u'\u2212':
    case u'\uFF0D':
        return u'-';
    default:
        return sign;
    }
}

} // namespace

QString plainNumber(const QString &text)
{
    QString plain = text;
    for (QChar &sign : plain)
        sign = plainSign(sign);
    return plain;
}

std::optional<float> readNumber(const QString &text)
{
    bool isNumber = false;
    const float number = plainNumber(text.trimmed()).toFloat(&isNumber);
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
    QString read = plainNumber(text);
    return QDoubleValidator::validate(read, position);
}
