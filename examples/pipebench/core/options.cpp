#include "core/options.h"

#include <charconv>
#include <optional>
#include <utility>

namespace pipebench {

static std::optional<DWORD> ToLcid(const std::string& language)
{
    static constexpr std::pair<const char*, DWORD> kNames[] = {
        {"en", 0x0409}, {"de", 0x0407}, {"fr", 0x040C}};
    for (const auto& [name, lcid] : kNames) {
        if (language == name)
            return lcid;
    }
    DWORD lcid = 0;
    const char* end = language.data() + language.size();
    const auto [stop, error] = std::from_chars(language.data(), end, lcid);
    if (error != std::errc{} || stop != end)
        return {};
    return lcid;
}

Options ReadOptions(const std::vector<std::string>& arguments)
{
    Options options;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        if (*argument == "--console") {
            options.console = true;
        } else if (*argument == "--language" && std::next(argument) != arguments.end()) {
            const auto lcid = ToLcid(*++argument);
            if (!lcid)
                options.error = "unknown language: " + *argument;
            options.lcid = lcid;
        } else {
            options.error = "unknown option: " + *argument;
        }
    }
    return options;
}

}  // namespace pipebench
