#include "netlog.h"

Q_LOGGING_CATEGORY(lcNet, "tarrow.net", QtInfoMsg)
