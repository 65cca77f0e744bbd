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

// Reading the bars finds the errors in their attributes as well.
ToolbarFile LoadToolbarFile(const std::string& path)
{
    if (!platform::FileExists(path.c_str()))
        return {};
    ToolbarFile file{{}, false};
    XMLDocument document;
    if (!document.OpenFile(path.c_str()))
        return file;
    file.bars = UsableBars(document);
    const bool isEmpty = document.GetDataLength() == 0;
    file.isWhole = isEmpty || (!file.bars.empty() && document.GetError() == xmlNoError);
    return file;
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

bool SaveToolbarFile(const std::string& path, std::span<const ToolbarRecord> bars, bool keepOld)
{
    XMLWriter writer(1024);
    WriteToolbars(writer, bars);
    if (writer.StrLen() == 0)
        return false;
    if (const std::size_t end = path.find_last_of("\\/"); end != path.npos)
        SmartCreateDir(path.substr(0, end).c_str());
    const bool keeps =
        keepOld ? platform::FileExists(path.c_str()) : !LoadToolbarFile(path).isWhole;
    if (keeps && !KeepAside(path))
        return false;
    return writer.SaveToDisk(path.c_str());
}

}  // namespace qx
