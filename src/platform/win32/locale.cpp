#include "platform/locale.h"

#include "platform/clock.h"

namespace qx::platform {

bool IsInstalledLocale(DWORD lcid)
{
    return ::IsValidLocale(lcid, LCID_INSTALLED);
}

// The system's text, empty for an unknown locale.
static std::string LocaleText(DWORD lcid, LCTYPE type)
{
    char text[5];  // three characters of the longest separator, of up to two bytes
    const int size = ::GetLocaleInfoA(lcid, type, text, sizeof text);
    return size > 0 ? text : "";
}

std::string DecimalSeparator(DWORD lcid)
{
    return LocaleText(lcid, LOCALE_SDECIMAL);
}
std::string ThousandsSeparator(DWORD lcid)
{
    return LocaleText(lcid, LOCALE_STHOUSAND);
}

// The text that `call(buffer, size)` puts into a buffer that is large enough. It returns the text's
// size with the terminator, 0 when it fails; empty then.
template <typename Call>
static std::string SizedText(Call call)
{
    std::string text(256, '\0');
    for (;;) {
        const int size = call(text.data(), static_cast<int>(text.size()));
        if (size > 0) {
            text.resize(static_cast<std::size_t>(size) - 1);
            return text;
        }
        if (::GetLastError() != ERROR_INSUFFICIENT_BUFFER)
            return {};
        text.resize(2 * text.size());
    }
}

std::string FormatCurrency(DWORD lcid, const char* value)
{
    if (!value)
        return {};
    return SizedText([=](char* buffer, int size) {
        return ::GetCurrencyFormatA(lcid, 0, value, nullptr, buffer, size);
    });
}

std::string FormatToday(DWORD lcid, DWORD flags)
{
    const LocalTime today = ToLocalTime(SecondsSince1970());
    SYSTEMTIME date{};
    date.wYear = static_cast<WORD>(today.year);
    date.wMonth = static_cast<WORD>(today.month);
    date.wDay = static_cast<WORD>(today.day);
    return SizedText([=](char* buffer, int size) {
        return ::GetDateFormatA(lcid, flags, &date, nullptr, buffer, size);
    });
}

}  // namespace qx::platform
