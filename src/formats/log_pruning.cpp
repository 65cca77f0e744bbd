#include "formats/log_pruning.h"

#include "formats/log_lines.h"
#include "platform/files.h"

#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace qx {

using platform::File;
using platform::FileMode;

static constexpr std::int64_t kLongestAge = 10 * 24 * 60 * 60;  // seconds

// The time in a header line, "[1226534400] ...": at most 19 characters are read, 0 without a
// number.
static std::int64_t HeaderTime(std::string_view line)
{
    const std::string number(line.substr(1, 19));
    return std::strtoll(number.c_str(), nullptr, 10);
}

// Hands over the lines that stay in a log, in order; false when it cannot be read to its end.
template <typename Take>
static bool ForEachLineThatStays(File& log, std::int64_t now, Take take)
{
    const auto lines = std::make_unique<LogLines>(log);
    bool isDropping = true;
    while (const auto line = lines->Next()) {
        if (line->text.starts_with('['))
            isDropping = now - HeaderTime(line->text) > kLongestAge;
        if (!isDropping)
            take(*line);
    }
    return !lines->HasFailed();
}

// True when pruning would write the same log anew.
static bool StaysAsItIs(File& log, std::int64_t now)
{
    std::uint64_t staying = 0;
    bool isLastEnded = true;
    const bool isRead = ForEachLineThatStays(log, now, [&](const LogLine& line) {
        staying += line.text.size() + line.end.size();
        isLastEnded = !line.end.empty();
    });
    return isRead && isLastEnded && staying == log.Size();
}

// Writes the lines that stay. A line without an end gets the one that its predecessor has.
static bool WriteLinesThatStay(File& log, std::int64_t now, File& pruned)
{
    static constexpr std::size_t kPortion = 65536;
    std::string held;
    std::string end = "\n";
    bool isWritten = true;
    const bool isRead = ForEachLineThatStays(log, now, [&](const LogLine& line) {
        if (!line.end.empty())
            end = line.end;
        held.append(line.text).append(end);
        if (held.size() >= kPortion) {
            isWritten = isWritten && pruned.Write(held);
            held.clear();
        }
    });
    return isRead && isWritten && pruned.Write(held);
}

// Writes the pruned log to the disk; false when it is not complete there.
static bool WritePruned(File& log, std::int64_t now, File& pruned)
{
    const auto size = log.Size();
    if (log && !(log.Seek(0) && WriteLinesThatStay(log, now, pruned)))
        return false;
    // Somebody else may have added to the log meanwhile: then it is pruned another time.
    return pruned.Flush() && pruned.Close() && log.Size() == size;
}

void PruneLog(const char* path, std::int64_t now)
{
    // A log that may not be written stays as it is; one that does not exist is made.
    if (!File(path, FileMode::Append))
        return;
    File log(path, FileMode::ReadShared);
    if (log && StaysAsItIs(log, now))
        return;
    platform::RemoveTemporariesBeside(path);
    const std::string name = platform::TemporaryNameBeside(path);
    File pruned(name.c_str(), FileMode::CreateNew);
    if (!pruned)
        return;
    const bool isComplete = WritePruned(log, now, pruned);
    pruned.Close();
    log.Close();
    if (!isComplete || !platform::MoveOver(name.c_str(), path))
        platform::RemoveFile(name.c_str());
}

}  // namespace qx
