// Locales that the test makes up.
#pragma once

#include "doubles/in_force.h"
#include "platform/locale.h"

#include <map>
#include <string>

namespace qx::test {

struct LocaleTexts {
    std::string decimal = ".", thousands = ",";
    std::string beforeMoney = "$", afterMoney;
    std::string shortDate = "11/13/2008", longDate = "Thursday, November 13, 2008";
};

// English in the United States is there from the start.
struct LocaleDouble : InForce<LocaleDouble> {
    std::map<DWORD, LocaleTexts> installed{{0x0409, {}}};

    // The texts of a locale; null when it is not installed.
    const LocaleTexts* Find(DWORD lcid) const
    {
        const auto found = installed.find(lcid);
        return found == installed.end() ? nullptr : &found->second;
    }
};

}  // namespace qx::test

namespace qx::platform {

bool IsInstalledLocale(DWORD lcid)
{
    return test::LocaleDouble::Current().Find(lcid);
}

std::string DecimalSeparator(DWORD lcid)
{
    const auto* texts = test::LocaleDouble::Current().Find(lcid);
    return texts ? texts->decimal : "";
}

std::string ThousandsSeparator(DWORD lcid)
{
    const auto* texts = test::LocaleDouble::Current().Find(lcid);
    return texts ? texts->thousands : "";
}

// The number as it is with the locale's decimal separator: not grouped, not rounded.
std::string FormatCurrency(DWORD lcid, const char* value)
{
    const auto* texts = test::LocaleDouble::Current().Find(lcid);
    if (!texts || !value)
        return {};
    std::string number = value;
    if (const std::size_t point = number.find('.'); point != std::string::npos)
        number.replace(point, 1, texts->decimal);
    return texts->beforeMoney + number + texts->afterMoney;
}

std::string FormatToday(DWORD lcid, DWORD flags)
{
    const auto* texts = test::LocaleDouble::Current().Find(lcid);
    if (!texts)
        return {};
    return flags == DATE_LONGDATE ? texts->longDate : texts->shortDate;
}

}  // namespace qx::platform
