// The block of names by which the system's print dialogs and a program tell each other a printer.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qx {

// The bytes of a DEVNAMES block: where each name starts, and that it is not the default printer's;
// then the names of driver, printer and port, each with its terminator. Nothing when they are too
// long for the block's 16-bit numbers.
std::optional<std::string> DeviceNamesBlock(std::string_view driver, std::string_view device,
                                            std::string_view port);

}  // namespace qx
