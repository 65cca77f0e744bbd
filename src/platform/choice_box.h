// A question with answers of its own.
#pragma once

#include <qxutility/types.h>

#include <span>
#include <string>

namespace qx::platform {

// Shows a modal box with a button for each of the answers, one below the other, and returns the
// number of the one pressed. The first answer is the one that changes nothing: it is the default
// button, and the result when the box is closed or cannot be shown. There is at least one; up to 16
// are shown.
//
// Where there are no windows, the host's handler of message boxes is asked about each of the other
// answers, as a question for Yes or No.
int ShowChoice(HWND owner, const char* question, const char* caption,
               std::span<const std::string> answers);

}  // namespace qx::platform
