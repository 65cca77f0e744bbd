#include "core/options.h"

#include <algorithm>
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

static void ReadLanguage(const std::string& value, Options& options)
{
    options.lcid = ToLcid(value);
    if (!options.lcid)
        options.error = "unknown language: " + value;
}

static void ReadCopies(const std::string& value, Options& options)
{
    constexpr int kMost = 99;
    const char* end = value.data() + value.size();
    const auto [stop, error] = std::from_chars(value.data(), end, options.copies);
    if (error != std::errc{} || stop != end || options.copies < 1 || options.copies > kMost)
        options.error = "not a number of copies: " + value;
}

static void ReadPdf(const std::string& value, Options& options)
{
    options.pdf = value;
}

static bool ReadSwitch(const std::string& argument, Options& options)
{
    static constexpr std::pair<const char*, bool Options::*> kSwitches[] = {
        {"--console", &Options::console},
        {"--print", &Options::print},
        {"--landscape", &Options::landscape}};
    for (const auto& [name, option] : kSwitches) {
        if (argument == name)
            return options.*option = true;
    }
    return false;
}

Options ReadOptions(const std::vector<std::string>& arguments)
{
    static constexpr std::pair<const char*, void (*)(const std::string&, Options&)> kValues[] = {
        {"--language", ReadLanguage}, {"--copies", ReadCopies}, {"--pdf", ReadPdf}};
    Options options;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        if (ReadSwitch(*argument, options))
            continue;
        const auto found = std::ranges::find(
            kValues, *argument, [](const auto& row) { return std::string(row.first); });
        if (found != std::end(kValues) && std::next(argument) != arguments.end())
            found->second(*++argument, options);
        else
            options.error = "unknown option: " + *argument;
    }
    return options;
}

}  // namespace pipebench
