#include "env/wording.h"

#include "config/process.h"

namespace qx {

std::string Translated(const char* wording)
{
    std::string text;
    Process().language.Text(wording, text, 0);
    return text;
}

}  // namespace qx
