#pragma once

/// The modules that the program brings along: parts of it that are loaded when they are first needed.
namespace Module {

/// Any function; the caller knows which.
using Function = void (*)();

/// Whether what is loaded later finds the functions of a module and of its libraries without naming them.
enum class Symbols { Own, Shared };

/// Finds a function of a module in the program's own folder, in "../lib" or in "../lib/tarrow-alertor" from there. The
/// module is loaded for it and stays. Null, and a line on standard error, when it cannot be loaded.
Function function(const char *module, const char *function, Symbols symbols = Symbols::Own);

} // namespace Module
