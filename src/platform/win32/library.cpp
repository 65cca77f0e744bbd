#include "platform/library.h"

#include "platform/path_text.h"

#include <qxutility/types.h>

namespace qx::platform {

// What a library needs itself is looked for in its own folder, too. A bare name is looked for in
// the folders of the program and the system; not in the current one, where anybody's files may be.
static DWORD SearchFlags(const char* path)
{
    return FolderPart(path).empty() ? LOAD_LIBRARY_SEARCH_DEFAULT_DIRS
                                    : LOAD_WITH_ALTERED_SEARCH_PATH;
}

Library::Library(const char* path) : m_handle(::LoadLibraryExA(path, nullptr, SearchFlags(path))) {}

Library::~Library()
{
    if (m_handle)
        ::FreeLibrary(static_cast<HMODULE>(m_handle));
}

Library::AnyFunction Library::Symbol(const char* name) const
{
    if (!m_handle)
        return nullptr;
    return reinterpret_cast<AnyFunction>(::GetProcAddress(static_cast<HMODULE>(m_handle), name));
}

std::string ComponentFile(std::string_view name)
{
    return std::string(name) + ".dll";
}

}  // namespace qx::platform
