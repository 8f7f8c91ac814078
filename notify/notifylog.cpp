#include "notifylog.h"

Q_LOGGING_CATEGORY(lcNotify, "tarrow.notify", QtWarningMsg)
