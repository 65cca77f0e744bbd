// Strings and byte resources of a module.
#pragma once

#include <qxutility/types.h>

#include <optional>
#include <string>
#include <string_view>

namespace qx::platform {

// The whole string, whatever its length; nothing when the module has none of this number.
std::optional<std::string> ResourceString(HINSTANCE module, unsigned id);
// The bytes of a resource, valid while the module is loaded (and not registered anew). A numbered
// resource is named "#300".
std::optional<std::string_view> ResourceBytes(HINSTANCE module, const char* name,
                                              const char* type);

}  // namespace qx::platform
