// The C library's current locale.
#pragma once

namespace qx::platform {

// The decimal character that printf and scanf use at this moment (setlocale).
char CLocalePoint();

}  // namespace qx::platform
