#include "fieldchecks.h"

#include <ui/fieldmark.h>
#include <ui/numbertext.h>

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>

#include <algorithm>

void FieldChecks::watch(QLineEdit *field, Check check)
{
    m_watched.append({field, check});
    const auto mark = [field, check](const QString &text) { markField(field, check(text)); };
    connect(field, &QLineEdit::textChanged, this, mark);
    mark(field->text());
}

QLineEdit *FieldChecks::firstMarked() const
{
    const auto found = std::find_if(m_watched.begin(), m_watched.end(), [](const Watched &watched) {
        return !watched.check(watched.field->text()).isEmpty();
    });
    return found == m_watched.end() ? nullptr : found->field;
}

void FieldChecks::pointOut(QLineEdit *field)
{
    field->setFocus(Qt::OtherFocusReason);
    field->selectAll();
    QToolTip::showText(field->mapToGlobal(field->rect().bottomLeft()), field->toolTip(), field);
}

QString FieldChecks::checkPort(const QString &text)
{
    constexpr int kLastPort = 65'535;
    const int port = plainNumber(text).toInt();
    return port > 0 && port <= kLastPort ? QString() : tr("A port is a number from 1 to 65535");
}

QString FieldChecks::checkBytes(const QString &text)
{
    bool isNumber = false;
    plainNumber(text).toULongLong(&isNumber);
    return isNumber ? QString() : tr("Enter a number of bytes, as digits alone");
}

QString FieldChecks::checkGamma(const QString &text)
{
    return readNumber(text).value_or(0.0F) > 0 ? QString() : tr("A gamma is a number above 0, as 2.2");
}

QString FieldChecks::checkAddress(const QString &text)
{
    return text.trimmed().isEmpty() ? tr("Enter the name or the address of a machine") : QString();
}
