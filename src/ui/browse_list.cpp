#include "ui/browse_list.h"

#include "core/folded_name.h"
#include "platform/path_text.h"

#include <algorithm>
#include <array>

namespace qx {

std::string WithoutFinalSeparator(std::string_view folder)
{
    const bool ends = !folder.empty() && platform::FolderPart(folder).size() == folder.size() &&
                      folder.back() == platform::kSeparator;
    return std::string(folder.substr(0, folder.size() - ends));
}

std::string JoinPath(std::string_view folder, std::string_view name)
{
    return std::string(folder).append(1, platform::kSeparator).append(name);
}

std::string ExtensionOf(std::string_view pattern)
{
    const std::size_t dot = pattern.rfind('.');
    if (dot == pattern.npos || pattern.find_first_of("*?", dot) != pattern.npos)
        return {};
    return std::string(pattern.substr(dot));
}

std::string SelectedName(std::string_view name, std::string_view pattern)
{
    std::string selected(name);
    const std::string extension = ExtensionOf(pattern);
    const std::size_t stem = name.size() - std::min(name.size(), extension.size());
    if (!name.empty() && !SameName(name.substr(stem), extension))
        selected += extension;
    return selected;
}

static void AppendTwoDigits(std::string& text, unsigned number)
{
    text += static_cast<char>('0' + number / 10 % 10);
    text += static_cast<char>('0' + number % 10);
}

std::string FileDate(unsigned month, unsigned day, unsigned year)
{
    std::string text;
    AppendTwoDigits(text, month);
    AppendTwoDigits(text += '/', day);
    AppendTwoDigits(text += '/', year);
    return text;
}

std::vector<ListedFile> ListFiles(std::string_view folder, const std::vector<FoundFile>& found,
                                  const FileQuestions& ask)
{
    std::vector<ListedFile> files;
    for (const auto& [name, written] : found) {
        const std::string path = JoinPath(folder, name);
        std::array<char, FileQuestions::kDescriptionSize> description{};
        std::array<char, FileQuestions::kDateSize> date{};
        if (!ask.approve(path.c_str(), description.data()))
            continue;
        const bool dated = ask.date(path.c_str(), written, date.data());
        files.push_back({name, description.data(), dated ? date.data() : "?\?/?\?/?\?"});
    }
    std::stable_sort(files.begin(), files.end(), [](const ListedFile& a, const ListedFile& b) {
        return NameBefore(a.name, b.name);
    });
    return files;
}

std::pair<std::string_view, std::string_view> SplitDescription(std::string_view description)
{
    const std::size_t tab = description.find('\t');
    if (tab == description.npos)
        return {description, {}};
    return {description.substr(0, tab), description.substr(tab + 1)};
}

Choice DecideChoice(const std::string& found, bool isFolder)
{
    if (found.empty())
        return {Choice::NotFound, {}, {}};
    if (isFolder)
        return {Choice::Folder, found, {}};
    const std::string_view folder = platform::FolderPart(found);
    return {Choice::File, WithoutFinalSeparator(folder), found.substr(folder.size())};
}

EntryLayout LayOutEntry(const RECT& row, int largeIcon, int icon, bool described, double unit)
{
    constexpr double kDateColumn = 64, kDateWidth = 60;
    constexpr int kMargin = 2;
    EntryLayout layout{};
    layout.icon = {row.left + (largeIcon - icon) / 2 + kMargin, row.top + kMargin};
    layout.text = {row.left + largeIcon + 2 * kMargin, row.top, row.right, row.bottom};
    layout.name = layout.date = layout.text;
    layout.name.right = row.right - static_cast<int>(kDateColumn * unit);
    layout.date.left = row.right - static_cast<int>(kDateWidth * unit);
    if (described) {
        layout.name.bottom = layout.date.bottom = (row.top + row.bottom) / 2;
        layout.description = layout.name;
        layout.detail = layout.date;
        layout.description.top = layout.detail.top = layout.name.bottom;
        layout.description.bottom = layout.detail.bottom = row.bottom;
    }
    return layout;
}

}  // namespace qx
