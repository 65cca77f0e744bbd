// The user's way to write dates.
#pragma once

#include <string>

namespace qx::platform {

// The pattern of a short date, such as "M/d/yyyy" or "dd.MM.yy"; on Windows at most 19 characters
// of it. "M" where the user has not set any.
std::string ShortDatePattern();

}  // namespace qx::platform
