#include "applog.h"

Q_LOGGING_CATEGORY(lcApp, "tarrow.app", QtWarningMsg)
