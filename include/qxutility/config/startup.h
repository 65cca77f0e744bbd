// What the library does for its process as a whole, and how failures are reported: assertion boxes
// for developers, error boxes and formatted messages made of numbered strings (see language.h),
// file filters for the system's file dialogs.
//
// A string that serves as a template comes from a table and is not trusted: its first `%s`, plain
// or with flags, width and precision as printf has them, takes the argument, `%%` is a percent sign
// and everything else, a second `%s` included, is shown as it stands.
//
// These functions belong to the user-interface thread. A null text counts as an empty one.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

#include <string>

// Sets the language of the library's own texts by Windows locale identifier; English when the
// locale is not installed or the language table has no column for its language.
QX_API void QXUtility_SetLanguage(DWORD lcid);

// From now on the five-argument AssertMessage returns IDNO without a box; there is no way back.
QX_API void SetAssertsOff();

// Asks the developer, in a box titled "DEBUG BUILD", what to do about a failed assertion `name`
// (and its `expression`) in `line` of `file`. Returns IDYES (break into the debugger), IDNO (go on)
// or IDCANCEL (go on, and ignore this line from now on).
//   ignoredLines  the caller's 10 line numbers, 0 for a free place; normally one static array per
//                 source file. A line that is in it gives IDNO at once. When it is full and one
//                 more line is cancelled, the overload used is silenced as a whole.
QX_API int AssertMessage(const char* file, int line, const char* name, int* ignoredLines,
                         const char* expression);
// The same without an expression. Tells an attached debugger of every call, even of those that show
// no box, and takes no notice of SetAssertsOff.
QX_API int AssertMessage(const char* file, int line, const char* name, int* ignoredLines);

// Shows an error box and returns the button pressed.
//   stringId  string of `module` (null: the library): a template for `text` when it has a '%', else
//             `text` follows it after a blank. At most 254 of its characters are used.
//             0: the message is `text`.
//   boxStyle  MB_* bits; MB_ICONHAND is added when they name no icon
QX_API int ErrorMessage(HINSTANCE module, const char* title, HWND owner, int stringId, int boxStyle,
                        const char* text);
QX_API int ErrorMessage(HINSTANCE module, const std::string& title, HWND owner, int stringId,
                        int boxStyle, const char* text);

// Puts string `stringId` of `module`, a template for `argument`, into `out` (`size` bytes) and
// returns `out`. The template is cut so that it fits with the argument (size - 1 - its length), the
// result at size - 1 characters. An argument of `size` or more characters is left out: `out`
// becomes the string as it stands, cut at size - 1, and is not touched when there is no such
// string.
QX_API char* FormatString(HINSTANCE module, int stringId, char* out, int size,
                          const char* argument);

// The same with a pointer for argument: the template's first integer or pointer conversion (%d %i
// %u %o %x %X %p) prints the value of the pointer itself, an address, cut to the conversion's size.
// Every other conversion is copied as text, nothing is read through the pointer. The template is
// cut at size - 11 characters. Below a size of 11 `out` is left as it is. Kept as the applications
// know it; to show a number, format it and use the text form.
QX_API char* FormatString(HINSTANCE module, int stringId, char* out, int size, double* value);

// Puts string `stringId` of `module` into `buffer`, which must hold 255 bytes, as a filter of the
// file dialogs: at most 254 characters, each '|' turned into a NUL, and two NULs at the end, where
// there is room for the second. Returns `buffer`, empty when there is no such string. The string's
// parts, name and pattern by turns, each end with '|': "Text files|*.txt|All files|*.*|".
QX_API char* LoadFileFilter(HINSTANCE module, char* buffer, int stringId);
