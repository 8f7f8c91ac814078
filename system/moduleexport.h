#pragma once

/// Marks the function that a module offers to Module::function().
#ifdef _WIN32
#define TARROW_MODULE_FUNCTION extern "C" __declspec(dllexport)
#else
#define TARROW_MODULE_FUNCTION extern "C" __attribute__((visibility("default")))
#endif
