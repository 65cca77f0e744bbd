// Settings kept with the system's profile functions.
#include "platform/files.h"
#include "platform/profile.h"

#include <qxutility/config/ini_file.h>
#include <qxutility/core/text.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <string_view>
#include <vector>

using qx::platform::ProfileValue;

static constexpr char kColorSection[] = "ID", kColorKey[] = "Colors";
static constexpr int kColors = 16;

static DWORD FileSize(const char* path)
{
    const auto size = qx::platform::File(path, qx::platform::FileMode::ReadShared).Size();
    return static_cast<DWORD>(size.value_or(0));
}

// The value of `key` in a list of "key=value" texts; null when there is none.
static const char* FindInList(const std::string& list, std::string_view key)
{
    for (std::size_t i = 0; i < list.size() && list[i] != '\0';) {
        const std::string_view entry = list.c_str() + i;
        if (entry.size() > key.size() && entry[key.size()] == '=' && entry.starts_with(key))
            return entry.data() + key.size() + 1;
        i += entry.size() + 1;
    }
    return nullptr;
}

DWORD GetPrivateProfileBigString(const char* section, const char* key, const char* defaultValue,
                                 char* out, DWORD size, const char* path)
{
    rstrncpy(out, defaultValue ? defaultValue : "", size);
    std::string list(FileSize(path) + 2, '\0');
    list.resize(
        qx::platform::ProfileSection(section, list.data(), static_cast<DWORD>(list.size()), path));
    const char* value = key ? FindInList(list, key) : nullptr;
    if (!value)
        return size > 0 ? static_cast<DWORD>(std::strlen(out)) : 0;
    rstrncpy(out, value, size);
    return static_cast<DWORD>(std::strlen(value));
}

// The names of a list of the profile functions, read into a buffer of the size that has always been
// used here. A name that was cut is none.
static std::vector<std::string> ListNames(const char* section, const char* path)
{
    constexpr DWORD kListBuffer = 1024;
    std::string list(kListBuffer, '\0');
    list.resize(qx::platform::ProfileString(section, nullptr, "", list.data(), kListBuffer, path));
    const bool cut = list.size() >= kListBuffer - 2 && list.back() != '\0';
    std::vector<std::string> names;
    for (std::size_t i = 0; i < list.size(); i += names.back().size() + 1)
        names.emplace_back(list.c_str() + i);
    if (cut)
        names.pop_back();
    return names;
}

void MergeINIFiles(const char* from, const char* to)
{
    std::deque<std::string> texts;  // stay where they are
    const auto keep = [&](std::string text) { return texts.emplace_back(std::move(text)).c_str(); };
    std::vector<qx::platform::ProfileEdit> edits;
    for (const std::string& name : ListNames(nullptr, from)) {
        const char* section = keep(name);
        for (const std::string& key : ListNames(section, from))
            edits.push_back(
                {section, keep(key), keep(ProfileValue(section, key.c_str(), "", MAX_PATH, from))});
    }
    if (!edits.empty())
        qx::platform::EditProfile(edits, to);
}

void ReadCustomColors(COLORREF colors[16], const char* path)
{
    constexpr COLORREF kWhite = 0xFFFFFF;
    const std::string list = ProfileValue(kColorSection, kColorKey, "", 255, path);
    const char* text = list.c_str();
    for (int i = 0; i < kColors; ++i) {
        colors[i] = kWhite;
        if (!text)
            continue;
        char* end;
        const unsigned long long color = std::strtoull(text, &end, 16);
        if (end != text)
            colors[i] = static_cast<COLORREF>(color);
        text = std::strchr(text, ' ');
        text = text ? text + 1 : nullptr;
    }
}

void WriteCustomColors(const COLORREF colors[16], const char* path)
{
    std::string list;
    for (int i = 0; i < kColors; ++i) {
        char text[16];
        std::snprintf(text, sizeof text, i == 0 ? "%06X" : " %06X",
                      static_cast<unsigned>(colors[i]));
        list += text;
    }
    qx::platform::WriteProfileString(kColorSection, kColorKey, list.c_str(), path);
}
