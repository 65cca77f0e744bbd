#include "print/job_messages.h"

namespace qx {

namespace {

// The spooler's codes, SP_* of the system.
enum SpoolerCode {
    kUserAbort = -3,  // in the print manager
    kAppAbort = -2,   // by the abort procedure
    kOutOfDisk = -4,
    kOutOfSpoolMemory = -5,
};

PrintString TextOfResult(int result)
{
    switch (result) {
        case kAppAbort:
        case kUserAbort:
            return kCancelled;
        case kOutOfDisk:
            return kDiskFull;
        case kOutOfSpoolMemory:
            return kOutOfMemory;
        default:
            return kPrintingError;
    }
}

}  // namespace

std::optional<JobMessage> SetupMessage(bool useDefault, DWORD dialogError)
{
    if (useDefault)
        return JobMessage{kNoPrinter, MB_ICONINFORMATION, {}};
    if (dialogError != 0)
        return JobMessage{kPrintingError, MB_ICONSTOP, {}};
    return {};
}

std::optional<JobMessage> StartMessage(int result)
{
    if (result >= 0)
        return {};
    const PrintString text = TextOfResult(result);
    return JobMessage{text == kCancelled ? kPrintingError : text, MB_ICONSTOP, {}};
}

std::optional<JobMessage> EndMessage(int result, bool cancelled)
{
    if (result > 0 && !cancelled)
        return {};
    const PrintString text = cancelled ? kCancelled : TextOfResult(result);
    return JobMessage{text, 0, text == kPrintingError ? ", code: " + std::to_string(result) : ""};
}

}  // namespace qx
