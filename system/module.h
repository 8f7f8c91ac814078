#pragma once

/// Loads the modules that the program brings along, parts of it that a start does not need.
namespace Module {

/// Stands for any function; the caller knows which.
using Function = void (*)();

/// Tells whether what is loaded later finds the functions of a module and of its libraries without naming them.
enum class Symbols { Own, Shared };

/// Finds a function of a module in the program's own folder, in "../lib" or in "../lib/tarrow-alertor" from there. The
/// module is loaded for it and stays. Null, and a line on standard error, when it cannot be loaded.
Function function(const char *module, const char *function, Symbols symbols = Symbols::Own);

} // namespace Module
