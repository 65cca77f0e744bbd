// The library's dialogs in each of its languages: every text has a translation, no text is cut off,
// no two controls of a dialog share a mnemonic. All dialogs among the resources are looked at.
#include "support/win32_ui.h"

#include <qxutility/config/language.h>
#include <qxutility/config/startup.h>
#include <qxutility/config/table_reader.h>

#include <algorithm>
#include <gmock/gmock.h>

using namespace qx::test;
using testing::IsEmpty;

namespace {

constexpr DWORD kEnglish = 0x0409;
constexpr int kCaption = 0;

// What dialogs show once they are open: strings of the library, by number.
struct LateText {
    int dialog, control;
    unsigned string;
};
constexpr LateText kLateTexts[] = {
    {107, kCaption, 6},  {107, 1000, 8},        {107, IDOK, 9},
    {107, IDCANCEL, 10}, {1000, kCaption, 114}, {1000, 1001, 4},
};

// Table and library stand in the folder that tests run in.
class DialogTexts : public testing::TestWithParam<DWORD> {
  protected:
    DialogTexts()
    {
        QXUtility_SetLanguage(GetParam());
        m_language.SetStringTable(&m_table);
        m_language.SetLanguage(GetParam());
    }
    ~DialogTexts() override { QXUtility_SetLanguage(kEnglish); }

    bool HasTranslation(std::string wording) const
    {
        if (wording.ends_with("..."))
            wording.resize(wording.size() - 3);
        if (const std::size_t ampersand = wording.find('&'); ampersand != wording.npos)
            wording.erase(ampersand, 1);
        std::string translation;
        return m_language.Text(wording, translation, 0);
    }
    void SetLateTexts(HWND dialog, LPCSTR name) const;
    void Check(LPCSTR name) const;

    HMODULE m_library = ::GetModuleHandleA("QXUtility.dll");
    CTableReader m_table{"QXUTILITY_LANGUAGE_c.DAT", '\t', nullptr, nullptr};
    CLanguage m_language;
};

INT_PTR CALLBACK DoNothing(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

void DialogTexts::SetLateTexts(HWND dialog, LPCSTR name) const
{
    for (const LateText& late : kLateTexts) {
        if (MAKEINTRESOURCEA(late.dialog) != name)
            continue;
        const HWND window = late.control == kCaption ? dialog : ::GetDlgItem(dialog, late.control);
        ASSERT_TRUE(window) << late.control;
        char text[255] = "";
        m_language.String(m_library, late.string, text, sizeof text);
        EXPECT_STRNE("", text) << late.string;
        EXPECT_STRNE("###", text) << late.string;
        ::SetWindowTextA(window, text);
    }
}

std::vector<std::string> TextsOfDialog(HWND dialog)
{
    std::vector<std::string> texts;
    for (const HWND child : ChildrenOf(dialog))
        texts.push_back(TextOf(child));
    return texts;
}

void DialogTexts::Check(LPCSTR name) const
{
    SCOPED_TRACE(testing::Message() << "dialog " << reinterpret_cast<UINT_PTR>(name));
    const HWND dialog = ::CreateDialogParamA(m_library, name, nullptr, DoNothing, 0);
    ASSERT_TRUE(dialog);
    for (const std::string& text : TextsOfDialog(dialog))
        EXPECT_TRUE(HasTranslation(text)) << text;
    EXPECT_TRUE(HasTranslation(TextOf(dialog))) << TextOf(dialog);

    m_language.Dialog(dialog);
    SetLateTexts(dialog, name);
    EXPECT_EQ("", SharedMnemonics(TextsOfDialog(dialog)));
    EXPECT_THAT(CutTexts(dialog), IsEmpty());
    ::DestroyWindow(dialog);
}

BOOL CALLBACK AddName(HMODULE, LPCSTR, LPSTR name, LONG_PTR names)
{
    reinterpret_cast<std::vector<LPCSTR>*>(names)->push_back(name);
    return TRUE;
}

}  // namespace

TEST_P(DialogTexts, AreTranslatedAndFit)
{
    std::vector<LPCSTR> dialogs;
    ::EnumResourceNamesA(m_library, MAKEINTRESOURCEA(5), AddName,
                         reinterpret_cast<LONG_PTR>(&dialogs));
    for (const LateText& late : kLateTexts)
        EXPECT_TRUE(std::count(dialogs.begin(), dialogs.end(), MAKEINTRESOURCEA(late.dialog)));
    for (const LPCSTR name : dialogs)
        Check(name);
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogTexts,
                         testing::Values(0x0409, 0x0407, 0x040C, 0x040A, 0x0410, 0x0416, 0x0413,
                                         0x041D));

// Texts are measured in the screen's own dots per inch.
int main(int count, char** arguments)
{
    ::SetProcessDPIAware();
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
