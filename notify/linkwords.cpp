#include "linkwords.h"

#include <ui/plaintext.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QLocale>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(LinkWords)
};

QString shortTime(const QDateTime &time)
{
    return QLocale::system().toString(time.time(), QLocale::ShortFormat);
}

/// Whatever was typed as name or address leaves room for the rest of the line, and for the list.
QString brief(const QString &typed)
{
    constexpr qsizetype kLongest = 80;
    const QString line = shortened(typed);
    return line.size() <= kLongest ? line : line.first(kLongest) + u'\u2026';
}

QString reason(const LinkReport &report)
{
    switch (report.reason) {
    case LinkReport::Reason::System:
        return report.detail;
    case LinkReport::Reason::Foreign:
        return Words::tr("Not a Dispatcher: it sent %1").arg(report.detail);
    case LinkReport::Reason::BrokenStream:
        return Words::tr("The Dispatcher's stream was damaged");
    case LinkReport::Reason::None:
        break;
    }
    return {};
}

} // namespace

QString LinkWords::server(const LinkReport &report)
{
    const QString form = report.address.contains(u':') ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2");
    return form.arg(brief(report.address), QString::number(report.port));
}

QString LinkWords::state(const LinkReport &report, const QDateTime &nextAttempt)
{
    using State = LinkReport::State;
    const QString why = reason(report);
    const QString user = brief(report.user);
    switch (report.state) {
    case State::Idle:
        return Words::tr("Not connected");
    case State::LookingUp:
        return Words::tr("Looking up %1").arg(brief(report.address));
    case State::Connecting:
        return Words::tr("Connecting to %1 as %2").arg(server(report), user);
    case State::Connected:
        return Words::tr("Connected to %1 as %2").arg(server(report), user);
    case State::Refused:
        return Words::tr("Log-in refused by %1 for %2").arg(server(report), user);
    case State::Closing:
    case State::Waiting:
        break;
    }
    QString text = Words::tr("Not connected to %1 as %2").arg(server(report), user);
    if (!why.isEmpty())
        text = Words::tr("%1: %2", "state of the link and why").arg(text, why);
    if (report.state == State::Waiting && nextAttempt.isValid())
        text += QStringLiteral(". ")
            + Words::tr("Next try at %1")
                  .arg(QLocale::system().toString(nextAttempt.time(), QStringLiteral("HH:mm:ss")));
    return text;
}

QString LinkWords::outage(const QDateTime &from, const QDateTime &to)
{
    // Over a night the times alone would read as minutes.
    const auto said = [&from, &to](const QDateTime &time) {
        return from.date() == to.date() ? shortTime(time)
                                        : QLocale::system().toString(time, QLocale::ShortFormat);
    };
    return Words::tr("Link was down %1 to %2; events of that time are not sent again")
        .arg(said(from), said(to));
}

QString LinkWords::loss(const LinkTrouble &trouble, const QDateTime &when)
{
    QString why;
    switch (trouble.kind) {
    case LinkTrouble::Kind::TooLarge:
        why = Words::tr("larger than 1 MiB");
        break;
    case LinkTrouble::Kind::Damaged:
        why = Words::tr("damaged");
        break;
    case LinkTrouble::Kind::NotRead:
        why = Words::tr("the Dispatcher does not read");
        break;
    case LinkTrouble::Kind::Oversized:
        why = Words::tr("one to the Dispatcher was larger than 1 MiB");
        break;
    case LinkTrouble::Kind::Broken:
    case LinkTrouble::Kind::Foreign:
        return {};
    }
    // Whatever the reason, both directions may have lost some.
    const int lost = trouble.received.messages + trouble.unsent.messages;
    if (lost == 0)
        return {};
    return Words::tr("Messages of or to the Dispatcher lost at %1: %2 (%3)")
        .arg(shortTime(when), QString::number(lost), why);
}
