// Toolbars as the text of their file.
#pragma once

#include "ui/toolbar_file.h"

#include <qxutility/formats/xml_writer.h>

#include <string>
#include <vector>

namespace qx::test {

inline std::string Written(const std::vector<ToolbarRecord>& bars)
{
    XMLWriter writer;
    WriteToolbars(writer, bars);
    std::string text(writer.StrLen() + 1, '\0');
    writer.StrCpy(text.data(), static_cast<unsigned>(text.size()));
    text.pop_back();
    return text;
}

}  // namespace qx::test
