// The shell's dialog that chooses a folder.
#include "config/process.h"
#include "win32/handle.h"

#include <qxutility/ui/browse_box.h>

#include <shlobj.h>

#include <objbase.h>

namespace {

constexpr int kTitle = 5;
constexpr std::size_t kLongestTitle = 59;

class ComUse {
  public:
    ComUse() : m_result(::CoInitialize(nullptr)) {}
    ComUse(const ComUse&) = delete;
    ComUse& operator=(const ComUse&) = delete;
    ~ComUse()
    {
        if (SUCCEEDED(m_result))
            ::CoUninitialize();
    }

  private:
    HRESULT m_result;
};

struct ItemListTraits {
    static LPITEMIDLIST None() { return nullptr; }
    static void Close(LPITEMIDLIST list) { ::CoTaskMemFree(list); }
};
using ItemList = qx::win32::UniqueHandle<ItemListTraits>;

int CALLBACK StartAtPath(HWND dialog, UINT message, LPARAM, LPARAM path)
{
    if (message == BFFM_INITIALIZED)
        ::SendMessageA(dialog, BFFM_SETSELECTIONA, TRUE, path);
    return 0;
}

}  // namespace

bool BrowseFolder(HWND owner, char* path)
{
    const std::string title =
        qx::Process().language.String(nullptr, kTitle).substr(0, kLongestTitle);
    const ComUse com;
    BROWSEINFOA request{};
    request.hwndOwner = owner;
    request.lpszTitle = title.c_str();
    request.ulFlags = BIF_RETURNONLYFSDIRS | BIF_DONTGOBELOWDOMAIN;
    request.lpfn = StartAtPath;
    request.lParam = reinterpret_cast<LPARAM>(path);
    const ItemList chosen(::SHBrowseForFolderA(&request));
    if (chosen && !::SHGetPathFromIDListA(chosen.get(), path))
        *path = '\0';
    return bool{chosen};
}
