// Parsing, rounding and formatting of engineering values.
#pragma once

#include <qxutility/export.h>

// Checks that a text typed by a user is a number in the form of the process's current language:
// digits with at most one decimal character (one at the very start is not counted), signs at the
// start or after the exponent's "e", opening parentheses, closing ones after a digit. A tab ends
// the text. Returns 0 for no number, 1 for a whole one, 2 for one with a decimal character, -1 for
// one with an exponent. The empty text is a whole number. When `value` is given and the text is a
// number, the text is changed in place to have '.' for its decimal character, and `value` gets the
// number, negative when it opens with "(".
QX_API int IsNumber(char* text, double* value);
