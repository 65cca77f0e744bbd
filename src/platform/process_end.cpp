#include "platform/process_end.h"

#include <cstdlib>

namespace qx::platform {

void EndProcess(int code)
{
    std::exit(code);
}

}  // namespace qx::platform
