// What the dialog that opens a file decides: what is listed and where it is drawn, which name a
// text stands for, what OK does.
#pragma once

#include "core/ascii_case.h"

#include <qxutility/types.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qx {

// A folder's path without its final separator.
std::string WithoutFinalSeparator(std::string_view folder);
// `folder`, its separator and `name`.
std::string JoinPath(std::string_view folder, std::string_view name);

// The extension that a pattern asks for, with its dot; empty for "*.*" and the like.
std::string ExtensionOf(std::string_view pattern);
// The file that a typed or listed name stands for: with the pattern's extension, unless it has that
// already (the case of letters does not matter). Nothing stands for nothing.
std::string SelectedName(std::string_view name, std::string_view pattern);

// month/day/year, two digits each.
std::string FileDate(unsigned month, unsigned day, unsigned year);

struct FoundFile {
    std::string name;
    std::uint64_t written;  // when last, in the system's own count
};

struct ListedFile {
    std::string name, description, date;
};

// The two questions about each file; both take its path and write to a buffer.
struct FileQuestions {
    static constexpr std::size_t kDescriptionSize = 260, kDateSize = 20;
    std::function<bool(const char* path, char* description)> approve;
    std::function<bool(const char* path, std::uint64_t written, char* date)> date;
};

// The approved ones of the files in a folder, by name without regard to case. A date that cannot be
// had is "??/??/??".
std::vector<ListedFile> ListFiles(std::string_view folder, const std::vector<FoundFile>& found,
                                  const FileQuestions& ask);

// A description's part below the name and, behind a tab, the one below the date.
std::pair<std::string_view, std::string_view> SplitDescription(std::string_view description);

// The entry that a typed letter leads to: the next one when it and the current one start with the
// letter, else the first that does. `current` is -1 for none, the result -1 for no change.
template <typename NameAt>
int FindByKey(int count, int current, char key, NameAt nameAt)
{
    const auto matches = [&](int i) { return FoldCase(nameAt(i)[0]) == FoldCase(key); };
    if (current >= 0 && current + 1 < count && matches(current) && matches(current + 1))
        return current + 1;
    for (int i = 0; i < count; ++i) {
        if (matches(i))
            return i;
    }
    return -1;
}

// What pressing OK is about, from what the system found for the typed name.
struct Choice {
    enum Kind { Folder, File, NotFound } kind;
    std::string folder;  // to be shown: the one found, or that of the file found
    std::string name;    // of the file found
};
Choice DecideChoice(const std::string& found, bool isFolder);

// The parts of an entry in the list. `unit` is the number of pixels in 1/96 inch.
struct EntryLayout {
    POINT icon;
    RECT text;  // all but the icon
    RECT name, date, description, detail;
};
EntryLayout LayOutEntry(const RECT& row, int largeIcon, int icon, bool described, double unit);

}  // namespace qx
