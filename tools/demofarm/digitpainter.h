#pragma once

#include "framepainter.h"

#include <cstdint>

/// Burns a number into the top left corner of the colour, as an opaque display of seven segments.
void paintNumber(RenderedFrame &picture, std::int64_t number);
