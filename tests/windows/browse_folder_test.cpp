// The system's dialog that chooses a folder.
#include "support/guarded_buffer.h"
#include "support/temporary_folder.h"
#include "support/win32_ui.h"

#include <qxutility/ui/browse_box.h>

#include <algorithm>
#include <gtest/gtest.h>

using namespace qx::test;

TEST(BrowseFolder, StartsAtTheGivenOneAndGivesTheChosen)
{
    const TemporaryFolder folder;
    const TestWindow owner("Owner");
    std::string given = folder.Path();
    std::replace(given.begin(), given.end(), '/', '\\');
    // The shell's first dialog of all selects the desktop once more when its folders are made
    // meanwhile.
    for (const int button : {int{IDCANCEL}, int{IDOK}}) {
        GuardedBuffer path(MAX_PATH);
        path = given.c_str();
        std::string title;
        ModalAnswer answer([&](HWND dialog) {
            title = MessageOf(dialog);
            Press(dialog, button);
        });
        EXPECT_EQ(button == IDOK, BrowseFolder(owner, path));
        EXPECT_EQ(0, ::lstrcmpiA(given.c_str(), path)) << path.data();
        EXPECT_EQ("Select a folder and choose OK.", title);
    }
}
