#pragma once

#include <helpers/imageextras.h>

#include <QtCore/QString>

/// Tells a user how much of an incomplete frame there is.
QString incompleteText(const FarmHelpers::PartialLoad &partial);
