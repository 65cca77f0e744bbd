#include "ui/win32/button_pictures.h"

#include "platform/module.h"
#include "platform/path_search.h"

namespace qx::win32 {

namespace {

struct ModuleTraits {
    static HMODULE None() { return nullptr; }
    static void Close(HMODULE module) { ::FreeLibrary(module); }
};
using ModuleHandle = UniqueHandle<ModuleTraits>;

}  // namespace

static constexpr int kMostResource = 0xFFFF;

static UINT FlagsOf(const PictureSource& source)
{
    return (source.buttonColors ? LR_LOADMAP3DCOLORS : 0U) |
           (source.windowColor ? LR_LOADTRANSPARENT : 0U);
}

static HBITMAP Load(HINSTANCE module, LPCSTR name, UINT flags)
{
    return static_cast<HBITMAP>(::LoadImageA(module, name, IMAGE_BITMAP, 0, 0, flags));
}

BitmapHandle LoadPicture(const PictureSource& source, HINSTANCE module)
{
    const std::string path = platform::FindProgram(source.file.c_str(), ".bmp");
    const UINT flags = FlagsOf(source);
    if (source.resource == 0)
        return BitmapHandle(path.empty() ? nullptr
                                         : Load(nullptr, path.c_str(), flags | LR_LOADFROMFILE));
    if (source.resource < 0 || source.resource > kMostResource)
        return BitmapHandle();
    const LPCSTR name = MAKEINTRESOURCEA(source.resource);
    if (path.empty()) {
        BitmapHandle own(Load(platform::ThisModule(), name, flags));
        return own ? std::move(own) : BitmapHandle(Load(module, name, flags));
    }
    // As data: whatever the file is, its code does not run.
    const ModuleHandle data(::LoadLibraryExA(
        path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE));
    return BitmapHandle(data ? Load(data.get(), name, flags) : nullptr);
}

}  // namespace qx::win32
