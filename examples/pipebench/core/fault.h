// Why something that the user entered or chose cannot be used.
#pragma once

#include <string>

namespace pipebench {

// The number of the message and the text that the message quotes: ready for ErrorMessage.
struct Fault {
    int stringId;
    std::string text;
};

}  // namespace pipebench
