#include "config/language_table.h"

#include <qxutility/core/text.h>

#include <algorithm>
#include <cstring>

namespace qx {

std::string LanguageName(const IndexedTable& table, std::string_view code)
{
    const Table& cells = table.Cells();
    if (!cells.HasColumn(code))
        return {};
    const Cell name =
        table.FindFirst(cells.FindColumn("IDS"), "L", Case::Matters, cells.FindColumn(code));
    return std::string(name.View());
}

std::string ShownText(std::string_view cell)
{
    std::string text(cell);
    if (text.find('%') != text.npos) {
        UnPurifyText(text.c_str(), text.data());
        text.resize(std::strlen(text.c_str()));
    }
    return text;
}

void CopyText(char* out, int size, std::string_view text)
{
    if (size <= 0)
        return;
    const std::size_t copied = std::min(text.size(), static_cast<std::size_t>(size) - 1);
    std::memmove(out, text.data(), copied);
    out[copied] = '\0';
}

char* NewText(std::string_view text)
{
    char* copy = new char[text.size() + 1];
    std::memcpy(copy, text.data(), text.size());
    copy[text.size()] = '\0';
    return copy;
}

}  // namespace qx
