#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

class QLineEdit;

/// Marks fields whose text cannot be taken, as it is typed.
class FieldChecks final : public QObject {
    Q_OBJECT

public:
    /// Gives why a text cannot be taken; empty when it can.
    using Check = QString (*)(const QString &text);

    using QObject::QObject;

    void watch(QLineEdit *field, Check check);
    /// Gives the first marked field in the order of watch(); null when all can be taken.
    QLineEdit *firstMarked() const;

    /// Goes to a marked field and says there what is wrong with it.
    static void pointOut(QLineEdit *field);

    static QString checkPort(const QString &text);
    static QString checkBytes(const QString &text);
    static QString checkGamma(const QString &text);
    static QString checkAddress(const QString &text);

private:
    struct Watched {
        QLineEdit *field;
        Check check;
    };

    QList<Watched> m_watched;
};
