#pragma once

#include <QtCore/QLoggingCategory>

/// At level debug: what the start finds of OpenGL.
Q_DECLARE_LOGGING_CATEGORY(lcApp)
