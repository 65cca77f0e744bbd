#include "config/language_code.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace qx {

LanguageCode CodeOf(DWORD primary, DWORD sub)
{
    LanguageCode code = {};
    std::snprintf(code.text, sizeof code.text, "%02u-%02u", static_cast<unsigned>(primary & 0x3FF),
                  static_cast<unsigned>(sub & 0x3F));
    return code;
}

DWORD LocaleOfCode(const char* code)
{
    const std::string text(code);
    const auto part = [&text](std::size_t at) {
        return at < text.size() ? std::atoi(text.substr(at, 2).c_str()) : 0;
    };
    return static_cast<DWORD>(part(3) << 10 | part(0)) & 0xFFFF;
}

}  // namespace qx
