#include "ui/dialog_template.h"

#include <cstdint>
#include <cstring>

namespace qx {

static constexpr std::uint32_t kContextHelp = 0x2000;    // DS_CONTEXTHELP
static constexpr std::uint16_t kExtended = 0xFFFF;       // second word of an extended template
static constexpr std::size_t kExtendedStyleOffset = 12;  // behind version, help id, extended style

void ClearContextHelp(void* dialogTemplate)
{
    if (!dialogTemplate)
        return;
    auto* const bytes = static_cast<char*>(dialogTemplate);
    std::uint16_t mark;
    std::memcpy(&mark, bytes + sizeof mark, sizeof mark);
    char* const place = bytes + (mark == kExtended ? kExtendedStyleOffset : 0);
    std::uint32_t style;
    std::memcpy(&style, place, sizeof style);
    style &= ~kContextHelp;
    std::memcpy(place, &style, sizeof style);
}

}  // namespace qx
