#include "print/device_names.h"

#include <cstdint>

namespace qx {

static void AddNumber(std::string& block, std::size_t number)
{
    block += static_cast<char>(number & 0xFF);
    block += static_cast<char>(number >> 8);
}

std::optional<std::string> DeviceNamesBlock(std::string_view driver, std::string_view device,
                                            std::string_view port)
{
    constexpr std::size_t kDriver = 4 * sizeof(std::uint16_t);  // behind the numbers
    const std::size_t deviceOffset = kDriver + driver.size() + 1;
    const std::size_t portOffset = deviceOffset + device.size() + 1;
    if (portOffset > UINT16_MAX)
        return std::nullopt;
    std::string block;
    for (const std::size_t number : {kDriver, deviceOffset, portOffset, std::size_t{0}})
        AddNumber(block, number);
    for (const std::string_view name : {driver, device, port})
        block.append(name).append(1, '\0');
    return block;
}

}  // namespace qx
