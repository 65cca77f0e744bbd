// The checks of a line: what its user should look at again.
#pragma once

#include "core/fault.h"
#include "core/pipe.h"
#include "core/settings.h"

#include <vector>

namespace pipebench {

// Metres per second: slower, what the fluid carries settles; faster, the pipe is worn and loud.
inline constexpr double kSlowest = 0.5, kFastest = 3;
// Times the diameter of the next pipe.
inline constexpr double kGreatestStep = 2;

// The warnings in the order of the pipes; `language` is for the numbers that they quote.
std::vector<Fault> CheckPipes(const CLanguage& language, const std::vector<Pipe>& pipes,
                              const Settings& settings);

}  // namespace pipebench
