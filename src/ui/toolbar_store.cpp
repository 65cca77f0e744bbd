#include "ui/toolbar_store.h"

#include "platform/files.h"

#include <qxutility/env/directories.h>
#include <qxutility/formats/xml_document.h>
#include <qxutility/formats/xml_writer.h>

namespace qx {

static constexpr int kMostKept = 100;  // unreadable files

static std::vector<ToolbarRecord> UsableBars(XMLDocument& document)
{
    std::vector<ToolbarRecord> bars = ReadToolbars(document);
    if (PlanLoading(bars).empty())
        bars.clear();
    return bars;
}

std::vector<ToolbarRecord> LoadToolbarFile(const std::string& path)
{
    XMLDocument document;
    return document.OpenFile(path.c_str()) ? UsableBars(document) : std::vector<ToolbarRecord>();
}

// Reading the bars finds the errors in their attributes as well.
static bool IsReadInFull(const std::string& path)
{
    XMLDocument document;
    if (!document.OpenFile(path.c_str()))
        return false;
    const bool isUsable = document.GetDataLength() == 0 || !UsableBars(document).empty();
    return isUsable && document.GetError() == xmlNoError;
}

static bool KeepAside(const std::string& path)
{
    for (int i = 1; i <= kMostKept; ++i) {
        const std::string name = path + ".unreadable" + (i > 1 ? std::to_string(i) : "");
        if (!platform::FileExists(name.c_str()))
            return platform::MoveOver(path.c_str(), name.c_str());
    }
    return false;
}

bool SaveToolbarFile(const std::string& path, std::span<const ToolbarRecord> bars)
{
    XMLWriter writer(1024);
    WriteToolbars(writer, bars);
    if (writer.StrLen() == 0)
        return false;
    if (const std::size_t end = path.find_last_of("\\/"); end != path.npos)
        SmartCreateDir(path.substr(0, end).c_str());
    if (platform::FileExists(path.c_str()) && !IsReadInFull(path) && !KeepAside(path))
        return false;
    return writer.SaveToDisk(path.c_str());
}

}  // namespace qx
