// What the library does for its process as a whole, and how failures are reported.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

#include <string>

QX_API void QXUtility_SetLanguage(DWORD lcid);
QX_API void SetAssertsOff();
QX_API int AssertMessage(const char* file, int line, const char* name, int* ignoredLines,
                         const char* expression);
QX_API int AssertMessage(const char* file, int line, const char* name, int* ignoredLines);
QX_API int ErrorMessage(HINSTANCE module, const char* title, HWND owner, int stringId,
                        int boxStyle, const char* text);
QX_API int ErrorMessage(HINSTANCE module, const std::string& title, HWND owner, int stringId,
                        int boxStyle, const char* text);
QX_API char* FormatString(HINSTANCE module, int stringId, char* out, int size,
                          const char* argument);
QX_API char* FormatString(HINSTANCE module, int stringId, char* out, int size, double* value);
QX_API char* LoadFileFilter(HINSTANCE module, char* buffer, int stringId);
