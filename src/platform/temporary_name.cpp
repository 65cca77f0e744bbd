#include "platform/files.h"
#include "platform/path_text.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <random>

namespace qx::platform {

// Names are cut to what every file system takes with the suffix added.
static constexpr std::size_t kLongestStem = 200;
static constexpr std::size_t kMostDigits = 8;
static constexpr std::string_view kExtension = ".tmp";

// What the temporary names beside `path` begin with, without the folder.
static std::string Stem(std::string_view path)
{
    const std::string_view name = path.substr(FolderPart(path).size());
    return std::string(name.size() > kLongestStem ? "long" : name) + ".";
}

static std::string RandomDigits()
{
    static std::random_device random;
    std::array<char, kMostDigits> digits;
    const std::uint32_t number = random();
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
    return {digits.data(), end};
}

std::string TemporaryNameBeside(const char* path)
{
    const std::string_view text = path ? path : "";
    const std::string start = std::string(FolderPart(text)) + Stem(text);
    std::string name;
    do {
        name = start + RandomDigits();
        name += kExtension;
    } while (FileExists(name.c_str()));
    return name;
}

static bool IsTemporaryName(std::string_view name, std::string_view stem)
{
    if (!name.starts_with(stem) || name.size() <= stem.size() + kExtension.size() ||
        !name.ends_with(kExtension))
        return false;
    name.remove_prefix(stem.size());
    name.remove_suffix(kExtension.size());
    return name.size() <= kMostDigits &&
           name.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

void RemoveTemporariesBeside(const char* path)
{
    const std::string_view text = path ? path : "";
    const std::string folder(FolderPart(text));
    const auto entries = ListDirectory(folder.empty() ? "." : folder.c_str());
    if (!entries)
        return;
    for (const DirectoryEntry& entry : *entries) {
        if (IsTemporaryName(entry.name, Stem(text)))
            RemoveFile((folder + entry.name).c_str());
    }
}

}  // namespace qx::platform
