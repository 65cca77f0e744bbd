// What a person is told about a print job, in a box titled kPrintTitle. A job without an owner
// window tells nothing.
#pragma once

#include <qxutility/types.h>

#include <optional>
#include <string>

namespace qx {

inline constexpr char kPrintTitle[] = "KVL Print";

// Strings of the library, with the numbers that the language table has always had.
enum PrintString {
    kOutOfMemory = 1005,  // also when there is no cancel window
    kPrintingError = 1006,
    kDiskFull = 1007,
    kCancelled = 1008,
    kNoPrinter = 1009,
    kNoPdfPrinter = 1012,
};

struct JobMessage {
    PrintString text;
    UINT icon;         // MB_ICON*; 0 for none
    std::string more;  // follows the text
};

// Each gives no message when there is nothing to tell. `result` is that of the last printing call:
// positive when all is well, otherwise one of the spooler's codes.

// When no printer could be set up: with the default one, or in the dialog, where `dialogError` is 0
// for a person who changed their mind.
std::optional<JobMessage> SetupMessage(bool useDefault, DWORD dialogError);
// When the document was started.
std::optional<JobMessage> StartMessage(int result);
// At the end of a job, which is to be aborted when there is a message.
std::optional<JobMessage> EndMessage(int result, bool cancelled);

}  // namespace qx
