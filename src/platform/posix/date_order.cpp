#include "platform/date_order.h"

#include <cstdlib>
#include <memory>
#include <string_view>
#include <unicode/smpdtfmt.h>

namespace qx::platform {

namespace {

// The name of the locale for dates; empty when the user has set none.
std::string_view DateLocaleName()
{
    for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const char* name = std::getenv(variable);
        if (name && *name)
            return name;
    }
    return {};
}

bool IsPlainC(std::string_view name)
{
    const std::string_view language = name.substr(0, name.find('.'));  // without the code set
    return language.empty() || language == "C" || language == "POSIX";
}

}  // namespace

std::string ShortDatePattern()
{
    const std::string name(DateLocaleName());
    if (IsPlainC(name))
        return "M";
    const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createDateInstance(
        icu::DateFormat::kShort, icu::Locale::createCanonical(name.c_str())));
    const auto* simple = dynamic_cast<const icu::SimpleDateFormat*>(format.get());
    if (!simple)
        return "M";
    icu::UnicodeString pattern;
    std::string text;
    simple->toPattern(pattern).toUTF8String(text);
    return text;
}

}  // namespace qx::platform
