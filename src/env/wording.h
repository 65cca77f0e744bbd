// English wordings in the user's language.
#pragma once

#include <string>

namespace qx {

std::string Translated(const char* wording);

}  // namespace qx
