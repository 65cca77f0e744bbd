// The end of the process.
#pragma once

namespace qx::platform {

// Ends the process as exit() does. Of `code`, systems that are not Windows keep the low 8 bits.
[[noreturn]] void EndProcess(int code);

}  // namespace qx::platform
