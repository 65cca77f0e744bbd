// Strings and byte resources of a module: those linked into it on Windows, those that the host
// registered elsewhere (qxutility/host.h). A null module is the process's program.
#pragma once

#include <qxutility/types.h>

#include <optional>
#include <string>
#include <string_view>

namespace qx::platform {

// The whole string, whatever its length; nothing when the module has none of this number, or an
// empty one. Numbers are 0 to 65535.
std::optional<std::string> ResourceString(HINSTANCE module, unsigned id);
// The bytes of a resource, valid while the module is loaded (and not registered anew); nothing when
// there is none. Names and types do not differ by the case of their letters. A numbered resource
// or type is named "#300", or by a pointer of that value, as MAKEINTRESOURCE makes it.
std::optional<std::string_view> ResourceBytes(HINSTANCE module, const char* name, const char* type);

}  // namespace qx::platform
