// Comparing, rounding, formatting and parsing of engineering values. A rounded value is exactly
// what its printed text reads back to: digits are correctly rounded (exact ties to even) and the
// same in every build; exponents have at least three digits. No function fails.
#pragma once

#include <qxutility/export.h>

// True when |a - b| < 9.999999747378752e-06 * |a| (1e-5 in single precision), strictly. The
// tolerance is relative to the first argument only, so the order matters. Next to a zero, the other
// value must be below 1e-9. A NaN equals nothing.
QX_API bool EqualDbl(double a, double b);

// `value` rounded to `places` decimals; a negative number of places means 6.
QX_API double DPlaces(double value, int places);

// `value` rounded to `digits` significant digits (0 counts as 1, a negative number as 6); a value
// with more whole digits keeps all of them and loses its fraction, and above 1e9 five significant
// digits are kept whatever `digits` says.
QX_API double Precision(double value, int digits);

// The number of decimals, 0 to 3, suited to showing the value.
QX_API int Digits(double value);

// The value rounded for display, with fewer decimals the larger it is; `text` receives the display
// text, without final zeros and with the decimal point of the C locale (at least 40 characters).
QX_API double RoundIt(double value, char* text);

// The value rounded for display by other bands than RoundIt's: four significant digits mostly, 0
// below 0.001. `text` (at least 40 characters) may be null.
QX_API double RoundDbl(char* text, double value);

// The value rounded to 7 significant digits, for dialog fields.
QX_API double CleanDbl(double value);

// The value raised to the next multiple of `step`, in millionths; unchanged when it is one already
// or when the step is less than a millionth.
QX_API double EvenMultiple(double value, double step);

// The number that the text starts with, as atof reads it in the C locale; negative when the text
// opens with "(". Number does the same.
QX_API double Number(const char* text);
QX_API double ParensForNegNum(const char* text);

// Checks that a text typed by a user is a number in the form of the process's current language:
// digits with at most one decimal character (one at the very start is not counted), signs at the
// start or after the exponent's "e", opening parentheses, closing ones after a digit. A tab ends
// the text. Returns 0 for no number, 1 for a whole one, 2 for one with a decimal character, -1 for
// one with an exponent. The empty text is a whole number. When `value` is given and the text is a
// number, the text is changed in place to have '.' for its decimal character, and `value` gets the
// number, negative when it opens with "(".
QX_API int IsNumber(char* text, double* value);
