#pragma once

#include <net/linkreport.h>
#include <net/linktrouble.h>

class QDateTime;

/// The words in which the user hears of the link; plain text, one line each.
namespace LinkWords {

/// Names the Dispatcher: address and port.
QString server(const LinkReport &report);
/// Says how the link stands: to whom and as whom, why it does not, and when the next attempt comes.
QString state(const LinkReport &report, const QDateTime &nextAttempt);
/// Says when the link was down.
QString outage(const QDateTime &from, const QDateTime &to);
/// Says what was lost, when and why; empty where the link's state says it.
QString loss(const LinkTrouble &trouble, const QDateTime &when);

} // namespace LinkWords
