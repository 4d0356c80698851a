#pragma once

#include <string>

namespace tamble {

/// The address of an exported function of a module that stands beside this library, which is loaded by the
/// first call and stays loaded. Throws std::runtime_error with the loader's words when there is no such
/// module or function.
void* moduleSymbol(const std::string& moduleFileName, const char* symbol);

}  // namespace tamble
