#include "fieldmark.h"

#include <QtCore/QVariant>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>

void markField(QLineEdit *field, const QString &fault)
{
    constexpr const char *kProperty = "invalid"; // the style sheet's word
    const bool isInvalid = !fault.isEmpty();
    if (field->property(kProperty).toBool() == isInvalid)
        return;
    field->setProperty(kProperty, isInvalid);
    field->setToolTip(fault);
    field->setAccessibleDescription(fault);
    field->style()->unpolish(field);
    field->style()->polish(field);
}
