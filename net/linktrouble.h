#pragma once

#include <net/protocol/loss.h>

#include <QtCore/QString>

/// What went wrong on a link that stood, and what it cost.
struct LinkTrouble {
    enum class Kind {
        TooLarge, ///< messages of more than the buffer holds came in
        Damaged, ///< a compressed message did not inflate
        NotRead, ///< the Dispatcher does not read: the queue to it is full
        Oversized, ///< a message to the Dispatcher was larger than the queue
        Broken, ///< the stream cannot be believed any more; the link ends
        Foreign, ///< what answers is no Dispatcher; the link ends
    };

    Kind kind = Kind::Broken;
    QString detail; ///< the first word of a foreign server, as "HTTP"
    Loss received;
    Loss unsent;
};
