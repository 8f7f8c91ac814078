#pragma once

namespace TImageLibrary {

class CTImageChannel;

/// Fills `target` with `source` at the target's size; both have the same type and samples. Throws when it cannot be done.
void resizeChannel(const CTImageChannel &source, CTImageChannel &target);

} // namespace TImageLibrary
