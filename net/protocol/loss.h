#pragma once

#include <QtCore/qglobal.h>

/// What of a stream was dropped: whole messages, and their bytes on the wire, also those that are still to come.
struct Loss {
    qint64 bytes = 0;
    int messages = 0;
};
