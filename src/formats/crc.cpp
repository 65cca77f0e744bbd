#include "formats/crc32.h"
#include "formats/crc_file.h"
#include "formats/crc_table.h"
#include "platform/files.h"
#include "platform/path_text.h"

#include <qxutility/formats/crc.h>

#include <cstring>
#include <string>
#include <vector>

CCrc::CCrc() noexcept = default;
CCrc::~CCrc() = default;
CCrc::CCrc(const CCrc&) noexcept = default;
CCrc& CCrc::operator=(const CCrc&) noexcept = default;

void CCrc::CalcCrc32(unsigned char byte, unsigned long& crc) const noexcept
{
    crc = qx::CrcByteStep(static_cast<std::uint32_t>(crc), byte);
}

unsigned long CCrc::StringCrc32(const char* text, unsigned long& crc) const noexcept
{
    const std::size_t length = text ? std::strlen(text) : 0;
    crc = ~qx::CrcUpdate(qx::kCrcStart, text, length);
    return 0;
}

unsigned long CCrc::FileCrc32Win32(const char* path, unsigned long& crc) const noexcept
{
    const qx::FileCrc result = qx::CrcOfFile(path);
    crc = result.crc;
    return result.systemError;
}

unsigned long CCrc::FileCrc32Assembly(const char* path, unsigned long& crc) const noexcept
{
    return FileCrc32Win32(path, crc);
}

// Only the last entry counts, by its bare name, and the argument is not written: applications rely
// on it.
unsigned long CCrc::DirectoryCrc32(const char* pattern, unsigned long&) const noexcept
{
    const std::vector<std::string> names = qx::platform::FindNames(pattern);
    if (names.empty())
        return 0;
    const qx::FileCrc last = qx::CrcOfFile(names.back().c_str());
    return last.crc + last.systemError;
}

bool CCrc::GetFileSizeQW(void* handle, long long& size) noexcept
{
    const auto result = qx::platform::SizeOf(reinterpret_cast<std::intptr_t>(handle));
    size = static_cast<long long>(result.value_or(0));
    return result.has_value();
}

// Finds the CRC of a file by its name in the folder of a table.
static qx::CrcOfName InFolderOf(std::string_view tablePath)
{
    const std::size_t length = tablePath.rfind(qx::platform::kSeparator) + 1;  // 0 without one
    return [folder = std::string(tablePath.substr(0, length))](std::string_view name) {
        return qx::CrcOfFile((folder + std::string(name)).c_str()).crc;
    };
}

bool CCrc::BuildCRCTable(const char* names, const char* tablePath) noexcept
{
    return BuildCRCTable(names, tablePath, nullptr);
}

bool CCrc::BuildCRCTable(const char* names, const char* tablePath,
                         const Progress& progress) noexcept
{
    qx::platform::File table(tablePath, qx::platform::FileMode::Create);
    const auto list = qx::SplitNames(names ? names : "");
    if (!table || list.empty())
        return false;
    const auto text = qx::CrcTableText(list, InFolderOf(tablePath), progress);
    return text && table.Write(*text) && table.Close();
}

bool CCrc::CheckCRCTable(const char* tablePath) noexcept
{
    return CheckCRCTable(tablePath, nullptr);
}

bool CCrc::CheckCRCTable(const char* tablePath, const Progress& progress) noexcept
{
    const auto table = qx::ReadCrcTable(tablePath);
    return table && qx::CheckCrcTable(*table, InFolderOf(tablePath), progress);
}
