// Marks what the library exports.
#pragma once

#if !defined(_WIN32)
#define QX_API __attribute__((visibility("default")))
#elif defined(QXUTILITY_BUILD)
#define QX_API __declspec(dllexport)
#elif defined(QXUTILITY_STATIC)  // the project's own tests of internals
#define QX_API
#else
#define QX_API __declspec(dllimport)
#endif
