#pragma once

namespace TImageLibrary {

class SourceFile;

/// Throws when a header holds an attribute that announces more bytes than the file has: OpenEXR takes memory for them first.
/// Other faults are left to OpenEXR.
void checkHeaders(const SourceFile &file);

} // namespace TImageLibrary
