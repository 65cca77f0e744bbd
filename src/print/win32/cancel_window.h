// The window in which people cancel a print job, and what the spooler asks while a job runs. There
// is one of them in the process, on the user-interface thread.
#pragma once

#include <qxutility/types.h>

namespace qx::win32 {

// Shows the window over `owner`, which it disables; when it is open already, counts only. False
// when it cannot be created. The job is not cancelled then.
bool OpenCancelWindow(HWND owner, const char* documentName);
// Closes it when it was called as often as the window was opened; never does harm. The owner is
// enabled again. Pressing Cancel closes the window at once.
void CloseCancelWindow();

// Whether Cancel was pressed, or the window went together with its owner.
bool IsCancelled();
void ForgetCancel();

// For SetAbortProc: handles the messages that wait; false once the job is cancelled. The end of the
// program's message loop cancels it too.
BOOL CALLBACK AbortProcedure(HDC dc, int error) noexcept;
// Whether one of those messages is being handled.
bool IsInAbortProcedure();

}  // namespace qx::win32
