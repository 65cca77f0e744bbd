// Times of day, durations and dates as text.
#pragma once

#include <qxutility/export.h>

// Writes decimal hours as "h:mm" (1.5 gives "1:30"), or as "h:mm:ss" when `showSeconds` is true or
// the seconds, rounded to whole ones, are not 0. `twoDigitHours` pads the hours to "01". Minutes
// and seconds of a negative time have a sign of their own (-1.5 gives "-1:-30"). Hours beyond a
// 32-bit integer are shown as the nearest one, NaN as 0. `text` must hold 24 characters; it is
// returned.
QX_API char* QXFormatTime(double hours, char* text, bool showSeconds, bool twoDigitHours);

// Reads "h", "h:mm" or "h:mm:ss" into decimal hours; ";" separates as ":" does. The hours may have
// a fraction, that of minutes and seconds is dropped. Any number of them counts as it is ("0:90" is
// 1.5); a text that is no number is 0. Numbers are read as atof reads them, in the C locale.
QX_API double QXReadTime(const char* text);

// Writes the local date and time of `time`, in seconds since 1970 (0: now), as "03/05/08  2:07 pm":
// month first where the user's short date begins with the month, else day first. Years have two
// digits until 2099 and three from 2100 on. Times outside of the years 1 to 9999 are taken as the
// nearest in them. `text` must hold 40 characters.
QX_API void DateAndTime(long long time, char* text);
