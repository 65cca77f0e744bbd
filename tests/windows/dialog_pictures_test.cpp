// The library's dialogs as people see them, with what they show in use: nothing is cut off at the
// resolution of the screen that this runs on. With QX_PICTURES set, a picture of each in three
// languages is left in that folder: <dialog>-<language>-<dots per inch>.png.
#include "support/temporary_folder.h"
#include "support/win32_ui.h"

#include <qxutility/config/help.h>
#include <qxutility/config/language.h>
#include <qxutility/config/startup.h>
#include <qxutility/config/table_reader.h>
#include <qxutility/ui/browse_box.h>
#include <qxutility/ui/warning_list.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <gmock/gmock.h>
// clang-format off
#include <propidl.h>  // what the next one needs
#include <gdiplus.h>
// clang-format on

using namespace qx::test;
using testing::IsEmpty;

namespace {

constexpr CLSID kPng = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

struct Language {
    const char* name;
    DWORD lcid;
};

int DotsPerInch()
{
    const HDC screen = ::GetDC(nullptr);
    const int dots = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    return dots;
}

// A window as it stands on the screen.
HBITMAP PictureOf(HWND window)
{
    RECT area;
    ::GetWindowRect(window, &area);
    const int width = area.right - area.left, height = area.bottom - area.top;
    const HDC screen = ::GetDC(nullptr), memory = ::CreateCompatibleDC(screen);
    const HBITMAP picture = ::CreateCompatibleBitmap(screen, width, height);
    const HGDIOBJ previous = ::SelectObject(memory, picture);
    ::BitBlt(memory, 0, 0, width, height, screen, area.left, area.top, SRCCOPY);
    ::SelectObject(memory, previous);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
    return picture;
}

void SaveAsPng(HBITMAP picture, const std::string& path)
{
    Gdiplus::Bitmap* image = Gdiplus::Bitmap::FromHBITMAP(picture, nullptr);
    const std::wstring file = std::filesystem::path(path).wstring();
    EXPECT_EQ(Gdiplus::Ok, image->Save(file.c_str(), &kPng, nullptr)) << path;
    delete image;
}

class DialogPictures : public testing::TestWithParam<Language> {
  protected:
    DialogPictures() { QXUtility_SetLanguage(GetParam().lcid); }
    ~DialogPictures() override { QXUtility_SetLanguage(0x0409); }
    static void SetUpTestSuite()
    {
        Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&s_pictures, &input, nullptr);
    }
    static void TearDownTestSuite() { Gdiplus::GdiplusShutdown(s_pictures); }

    // Looks at an open dialog.
    void Look(HWND dialog, const std::string& name)
    {
        SCOPED_TRACE(name);
        ::RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        PumpWaiting();
        EXPECT_THAT(CutTexts(dialog), IsEmpty());
        const char* const folder = std::getenv("QX_PICTURES");
        if (!folder)
            return;
        const HBITMAP picture = PictureOf(dialog);
        SaveAsPng(picture, std::string(folder) + "\\" + name + "-" + GetParam().name + "-" +
                               std::to_string(DotsPerInch()) + ".png");
        ::DeleteObject(picture);
    }
    ModalAnswer LookAt(const std::string& name)
    {
        return ModalAnswer([=, this](HWND dialog) {
            Look(dialog, name);
            Press(dialog, IDCANCEL);
        });
    }

    TestWindow m_owner{"Owner", 900, 700};
    static inline ULONG_PTR s_pictures;
};

INT_PTR CALLBACK DoNothing(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

struct Catalogs : CBrowseBox {
    using CBrowseBox::CBrowseBox;
    bool ApproveFile(const char* path, char* description) override
    {
        std::strcpy(description, std::strstr(path, "ump") ? "Pumps for clean water\t7.5 kW" : "");
        return true;
    }
};

}  // namespace

TEST_P(DialogPictures, BrowseBox)
{
    const TemporaryFolder folder;
    for (const char* name : {"Pumps.dat", "More pumps.dat", "Valves.dat", "Pipes of steel.dat",
                             "Fittings.dat", "Reducers.dat", "Tanks.dat"})
        folder.Write(name, "x");
    Catalogs box(folder.Path().c_str(), "*.dat");
    box.AddHelpButton();
    const ModalAnswer look = LookAt("browse-box");
    box.Display(m_owner);
}

TEST_P(DialogPictures, WarningList)
{
    HTML_HELP help;
    help.AddType("Dialog", "Manual.chm", "main");
    QXWarningList warnings(nullptr, 0, 1, &help, nullptr);
    for (const char* pipe : {"P1", "P2", "P7", "P12", "P13"})
        warnings.add("The velocity in pipe %s is above the limit of the material.", pipe);
    const ModalAnswer look = LookAt("warning-list");
    warnings.display(m_owner);
}

TEST_P(DialogPictures, CancelWindow)
{
    const HMODULE library = ::GetModuleHandleA("QXUtility.dll");
    CTableReader table("QXUTILITY_LANGUAGE_c.DAT", '\t', nullptr, nullptr);
    CLanguage language;
    language.SetStringTable(&table);
    language.SetLanguage(GetParam().lcid);
    const HWND dialog = ::CreateDialogParamA(library, MAKEINTRESOURCEA(104), m_owner, DoNothing, 0);
    ASSERT_TRUE(dialog);
    language.Dialog(dialog);
    ::SetDlgItemTextA(dialog, 501, "Pressure drop in the north line");
    ::ShowWindow(dialog, SW_SHOW);
    Look(dialog, "cancel-window");
    ::DestroyWindow(dialog);
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogPictures,
                         testing::Values(Language{"en", 0x0409}, Language{"de", 0x0407},
                                         Language{"fr", 0x040C}),
                         [](const auto& language) { return language.param.name; });

// The screen's own dots per inch, not 96 that the system would scale up.
int main(int count, char** arguments)
{
    ::SetProcessDPIAware();
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
