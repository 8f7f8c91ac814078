#include "settingslog.h"

Q_LOGGING_CATEGORY(lcSettings, "tarrow.settings", QtWarningMsg)
