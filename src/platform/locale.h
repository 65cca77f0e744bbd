// Locale data by Windows locale identifier: the system's own on Windows, ICU's elsewhere. Texts are
// in the ANSI code page of the locale (of the process for a locale that has none; 1252 where there
// is no such thing); a character that the code page lacks becomes '?'. An unknown locale gives
// empty texts. All functions may be called from any thread.
#pragma once

#include <qxutility/types.h>

#include <string>

namespace qx::platform {

// True for a language with its country (0x0407), also for the language alone (0x0007) and with a
// sort order (0x10407). False for the placeholders (0, 0x0400, 0x0800).
bool IsInstalledLocale(DWORD lcid);

// One character of one or two bytes nearly everywhere, at most four bytes. A thousands separator
// that is a blank is the no-break space, 0xA0 in most code pages.
std::string DecimalSeparator(DWORD lcid);
std::string ThousandsSeparator(DWORD lcid);

// Currency text of a plain number text: "-1234.567" gives "-1.234,57 €" in German. The number is an
// optional '-', digits, and at most one '.' among them; without digits it is zero. No digit of a
// long one is lost. Rounded half away from zero to the currency's decimals. Empty when it is no
// such text, or longer than the system takes.
std::string FormatCurrency(DWORD lcid, const char* value);

// Today's date in the local time zone. flags: 0 or DATE_SHORTDATE for the short form (05.03.2008),
// DATE_LONGDATE for the long one (Mittwoch, 5. März 2008); empty for both, or with flags that the
// system does not know.
std::string FormatToday(DWORD lcid, DWORD flags);

}  // namespace qx::platform
