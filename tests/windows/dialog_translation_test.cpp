#include "support/language_fixture.h"
#include "support/win32_ui.h"

#include <gmock/gmock.h>

using namespace qx::test;

static const char kTable[] =
    "IDS\t09-01\t07-01\t12-01\r\n"
    "L\tEnglish\tDeutsch\tFran\347ais\r\n"
    "\tPipe\tRohr\tTuyau\r\n"
    "\tLength\t&L\344nge\tLongueur\r\n"
    "\tWidth:\tBreite\tLargeur\240:\r\n"
    "\tBrowse\tDurchsuchen\tParcourir\r\n"
    "\tCancel\tAbbrechen\tAnnuler\r\n"
    "\tLine one%0aLine two\tZeile eins%0aZeile zwei\tLigne un%0aLigne deux\r\n";

enum Control {
    kLength = 11,
    kWidth,
    kBrowse,
    kLines,
    kUnknown,
    kNumber,
    kEdit,
    kCombo,
    kList,
    kPanel,
    kInner
};

static void FillDialog(HWND dialog)
{
    struct Child {
        const char *className, *text;
        DWORD style;
        int id;
    };
    const Child children[] = {
        {"Static", "&Length:", 0, kLength},
        {"Static", "Width:", 0, kWidth},
        {"Button", "&Browse...", 0, kBrowse},
        {"Button", "Cancel", 0, IDCANCEL},
        {"Static", "Line one\nLine two", 0, kLines},
        {"Button", "Not in the table...", BS_GROUPBOX, kUnknown},
        {"Static", "12.5", 0, kNumber},
        {"Edit", "Length", 0, kEdit},
        {"ComboBox", "", CBS_DROPDOWN, kCombo},
        {"ListBox", "Length", 0, kList},
        {"Static", "", 0, kPanel},
    };
    for (const Child& child : children)
        MakeChild(dialog, child.className, child.text, child.style, child.id);
    MakeChild(::GetDlgItem(dialog, kPanel), "Button", "Cancel", 0, kInner);
    ::SetDlgItemTextA(dialog, kCombo, "Length");
    ::SendDlgItemMessageA(dialog, kList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("Length"));
}

// Opens the dialog, lets the language translate it, and reads what then stands on the screen.
struct Shown {
    explicit Shown(const CLanguage& language)
    {
        ModalAnswer answer([this](HWND dialog) {
            caption = TextOf(dialog);
            for (int id = 1; id <= kPanel; ++id)
                texts[id] = TextOfItem(dialog, id);
            inner = TextOfItem(::GetDlgItem(dialog, kPanel), kInner);
            listItems = ItemsOf(::GetDlgItem(dialog, kList));
            Press(dialog, IDCANCEL);
        });
        result = RunDialog("Pipe", [&](HWND dialog) {
            FillDialog(dialog);
            language.Dialog(dialog);
        });
    }
    std::string caption, inner;
    std::map<int, std::string> texts;
    std::vector<std::string> listItems;
    INT_PTR result = 0;
};

TEST(DialogTranslation, CoversCaptionAndLabels)
{
    struct Case {
        DWORD lcid;
        const char *caption, *length, *width, *browse, *cancel, *lines;
    };
    const Case cases[] = {
        {kGerman, "Rohr", "&L\344nge:", "Breite:", "Durchsuchen...", "Abbrechen",
         "Zeile eins\nZeile zwei"},
        {kFrench, "Tuyau", "Longueur:", "Largeur\240:", "Parcourir...", "Annuler",
         "Ligne un\nLigne deux"},
        {kEnglish, "Pipe", "&Length:", "Width:", "&Browse...", "Cancel", "Line one\nLine two"},
    };
    for (const Case& c : cases) {
        const TestLanguage test(kTable, c.lcid);
        Shown shown(test.language);
        EXPECT_EQ(IDCANCEL, shown.result);
        EXPECT_EQ(c.caption, shown.caption) << c.lcid;
        EXPECT_EQ(c.length, shown.texts[kLength]) << c.lcid;
        EXPECT_EQ(c.width, shown.texts[kWidth]) << c.lcid;
        EXPECT_EQ(c.browse, shown.texts[kBrowse]) << c.lcid;
        EXPECT_EQ(c.cancel, shown.texts[IDCANCEL]) << c.lcid;
        EXPECT_EQ(c.lines, shown.texts[kLines]) << c.lcid;
        EXPECT_EQ(c.cancel, shown.inner) << "a child of a child, " << c.lcid;
    }
}

TEST(DialogTranslation, LeavesTheUsersDataAndWhatHasNoTranslation)
{
    const TestLanguage test(kTable, kGerman);
    Shown shown(test.language);
    EXPECT_EQ("Length", shown.texts[kEdit]);
    EXPECT_EQ("Length", shown.texts[kCombo]);
    EXPECT_EQ("Length", shown.texts[kList]);
    EXPECT_THAT(shown.listItems, testing::ElementsAre("Length"));
    EXPECT_EQ("Not in the table...", shown.texts[kUnknown]);
    EXPECT_EQ("12.5", shown.texts[kNumber]);
}

TEST(ControlTranslation, TellsWhetherTheTextWasSet)
{
    const TestLanguage german(kTable, kGerman), english(kTable, kEnglish);
    CLanguage withoutTable;
    withoutTable.SetLanguage(kGerman);
    const TestWindow window("Control");
    const HWND button = MakeChild(window, "Button", "Cancel", 0, 1);
    const HWND blank = MakeChild(window, "Button", "", 0, 2);

    EXPECT_FALSE(english.language.Control(button));
    EXPECT_FALSE(withoutTable.Control(button));
    EXPECT_FALSE(german.language.Control(blank));
    EXPECT_FALSE(german.language.Control(nullptr));
    EXPECT_EQ("Cancel", TextOf(button));
    EXPECT_TRUE(german.language.Control(button));
    EXPECT_EQ("Abbrechen", TextOf(button));
    ::SetWindowTextA(button, std::string(5'000, 'x').c_str());
    EXPECT_TRUE(german.language.Control(button));
    EXPECT_EQ(std::string(254, 'x'), TextOf(button));
}
