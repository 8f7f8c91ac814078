#include "viewerlog.h"

Q_LOGGING_CATEGORY(lcViewer, "tarrow.viewer")
