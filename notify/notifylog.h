#pragma once

#include <QtCore/QLoggingCategory>

/// At level info: one line for each event that is kept.
Q_DECLARE_LOGGING_CATEGORY(lcNotify)
