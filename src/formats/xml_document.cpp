#include "formats/xml_arena.h"
#include "formats/xml_attributes.h"
#include "formats/xml_parser.h"
#include "formats/xml_scan.h"
#include "platform/files.h"
#include "platform/resources.h"

#include <qxutility/formats/xml_document.h>

#include <cstring>
#include <limits>
#include <optional>

XMLDocument::XMLDocument() : XMLElement(this), m_attributes(std::make_unique<qx::XmlAttributes>())
{
}
XMLDocument::~XMLDocument() = default;

void XMLDocument::Release()
{
    m_text.reset();
    m_length = 0;
    m_error = xmlNoError;
    Erase();
    m_arena.reset();
    *m_attributes = {};
}

// A buffer for a text, which is ended already.
char* XMLDocument::MakeRoom(std::size_t length)
{
    m_text = std::make_unique_for_overwrite<char[]>(length + qx::kScanPadding);
    std::memset(m_text.get() + length, '\0', qx::kScanPadding);
    m_length = static_cast<unsigned>(length);
    return m_text.get();
}

void XMLDocument::Parse()
{
    m_arena = std::make_unique<qx::XmlArena>();
    m_isValid = true;
    qx::ParseXml(*this);
}

// Positions in a text are 32-bit numbers.
static constexpr std::uint64_t kLargestText =
    std::numeric_limits<unsigned>::max() - qx::kScanPadding;

static std::optional<std::size_t> LoadableSize(const qx::platform::File& file)
{
    const auto size = file.Size();
    if (!size || *size > kLargestText)
        return std::nullopt;
    return static_cast<std::size_t>(*size);
}

bool XMLDocument::OpenFile(const char* path)
{
    Release();
    qx::platform::File file(path, qx::platform::FileMode::Read);
    const auto size = LoadableSize(file);
    if (!size)
        return false;
    // A file that became shorter meanwhile is no longer than what was read of it.
    const auto length = file.Read(MakeRoom(*size), *size);
    if (!length) {
        Release();
        return false;
    }
    std::memset(m_text.get() + *length, '\0', *size - *length);
    m_length = m_elementEnd = m_dataEnd = static_cast<unsigned>(*length);
    Parse();
    return true;
}

bool XMLDocument::UseData(const char* data, int length)
{
    Release();
    if (!data)
        return false;
    const std::size_t size = length < 0 ? std::strlen(data) : static_cast<std::size_t>(length);
    if (size > kLargestText)
        return false;
    std::memcpy(MakeRoom(size), data, size);
    Parse();
    return true;
}

bool XMLDocument::LoadResource(HINSTANCE module, const char* name, const char* type)
{
    const auto bytes = qx::platform::ResourceBytes(module, name, type);
    return bytes && UseData(bytes->data(), static_cast<int>(bytes->size()));
}
