// A process that does not end: the test catches the exit code instead.
#pragma once

#include "platform/process_end.h"

namespace qx::test {

struct ProcessEnded {
    int code;
};

}  // namespace qx::test

namespace qx::platform {

void EndProcess(int code)
{
    throw test::ProcessEnded{code};
}

}  // namespace qx::platform
