// Locale data by Windows locale identifier. Texts are in the ANSI code page of that locale.
#pragma once

#include <qxutility/types.h>

#include <string>

namespace qx::platform {

bool IsInstalledLocale(DWORD lcid);
std::string DecimalSeparator(DWORD lcid);    // empty for an unknown locale
std::string ThousandsSeparator(DWORD lcid);  // empty for an unknown locale
// Currency text of a plain number text ("-1234.56"); empty when it is no number or the locale is
// unknown.
std::string FormatCurrency(DWORD lcid, const char* value);
// Today's date; flags: 0 or DATE_SHORTDATE, or DATE_LONGDATE. Empty for an unknown locale.
std::string FormatToday(DWORD lcid, DWORD flags);

}  // namespace qx::platform
