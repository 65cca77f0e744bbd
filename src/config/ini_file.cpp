#include "config/ini_text.h"
#include "config/process.h"
#include "core/decimal.h"
#include "platform/c_locale.h"
#include "platform/files.h"

#include <qxutility/config/ini_file.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <optional>

struct INIFile::Data {
    std::string fileName;  // of the last Read that succeeded; otherwise empty
    qx::IniText text;
};

INIFile::INIFile() : m_data(new Data) {}

INIFile::INIFile(const char* path) : INIFile()
{
    Read(path);
}

INIFile::INIFile(const INIFile& other) : m_data(new Data(*other.m_data)) {}

INIFile& INIFile::operator=(const INIFile& other)
{
    if (this != &other)
        *m_data = *other.m_data;
    return *this;
}

INIFile::~INIFile()
{
    delete m_data;
}

static std::optional<std::string> ReadFile(const char* path)
{
    qx::platform::File file(path, qx::platform::FileMode::ReadExclusive);
    const auto size = file.Size();
    if (!size || *size >= std::string().max_size())
        return std::nullopt;
    std::string text(static_cast<std::size_t>(*size), '\0');
    const auto length = file.Read(text.data(), text.size());
    if (!length)
        return std::nullopt;
    text.resize(*length);
    return text;
}

bool INIFile::Read(const char* path)
{
    m_data->fileName.clear();
    auto text = ReadFile(path);
    const bool opened = text.has_value();
    if (!m_data->text.Read(std::move(text).value_or("")) || !opened)
        return false;
    m_data->fileName = path;
    return true;
}

bool INIFile::Exists() const
{
    return !m_data->fileName.empty();
}

static std::string_view View(const char* text)
{
    return text ? text : "";
}

// The section that is looked into first: the language's, or for English the section itself.
static std::string FirstSection(std::string_view section, const CLanguage* language, DWORD lcid)
{
    std::string name(section);
    if (!language && lcid == 0)
        return name;
    name.resize(section.size() + 128);
    const CLanguage& names = language ? *language : qx::Process().language;
    names.INISection(name.data(), static_cast<int>(name.size()), lcid);
    return name.c_str();
}

static std::string_view FindValue(const qx::IniText& text, std::string_view section,
                                  std::string_view key, const CLanguage* language, DWORD lcid)
{
    if (language || lcid != 0) {
        const auto value = text.Find(FirstSection(section, language, lcid), key);
        if (!value.empty())
            return value;
    }
    return text.Find(section, key);
}

const char* INIFile::GetPrivateProfileStringA(const char* section, const char* key, const char*,
                                              const CLanguage* language, DWORD lcid) const
{
    return FindValue(m_data->text, View(section), View(key), language, lcid).data();
}

// Copies a text of which the terminator is a part: what fills the buffer or more counts as cut.
static DWORD CopyText(std::string_view text, char* out, DWORD size)
{
    if (text.size() < size) {
        std::memcpy(out, text.data(), text.size());
        return static_cast<DWORD>(text.size());
    }
    if (size > 0) {
        std::memcpy(out, text.data(), size - 1);
        out[size - 1] = '\0';
    }
    return size;
}

static DWORD CopyDefault(const char* value, char* out, DWORD size)
{
    const std::string_view text = View(value);
    if (!out || text.size() >= size)
        return out ? CopyText(text, out, size) : 0;
    std::memcpy(out, text.data(), text.size());
    out[text.size()] = '\0';
    return static_cast<DWORD>(text.size());
}

static std::string KeyList(const qx::IniText& text, std::string_view section,
                           const CLanguage* language, DWORD lcid)
{
    std::string list = text.KeyList(FirstSection(section, language, lcid));
    return list.empty() ? text.KeyList(section) : list;
}

DWORD INIFile::GetPrivateProfileStringA(const char* section, const char* key,
                                        const char* defaultValue, char* out, DWORD size,
                                        const CLanguage* language, DWORD lcid) const
{
    if (!out)
        return 0;
    if (key) {
        const auto value = FindValue(m_data->text, View(section), key, language, lcid);
        if (!value.empty())
            return CopyText({value.data(), value.size() + 1}, out, size);
    } else if (size >= 3) {
        const std::string list = KeyList(m_data->text, View(section), language, lcid);
        if (!list.empty())
            return CopyText({list.data(), list.size() + 1}, out, size);
    }
    return CopyDefault(defaultValue, out, size);
}

int INIFile::GetPrivateProfileIntA(const char* section, const char* key, int defaultValue,
                                   const CLanguage* language, DWORD) const
{
    char text[64];
    // The language object decides, not the locale given; applications rely on that.
    GetPrivateProfileStringA(section, key ? key : "", "", text, sizeof text, language, 0);
    if (!text[0])
        return defaultValue;
    constexpr long long kLeast = std::numeric_limits<int>::min();
    constexpr long long kMost = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::strtoll(text, nullptr, 10), kLeast, kMost));
}

double INIFile::GetPrivateProfileDouble(const char* section, const char* key, double defaultValue,
                                        const CLanguage* language, DWORD) const
{
    char text[128];
    // As above.
    GetPrivateProfileStringA(section, key ? key : "", "", text, sizeof text, language, 0);
    return text[0] ? qx::ParseDouble(text, qx::platform::CLocalePoint()) : defaultValue;
}
