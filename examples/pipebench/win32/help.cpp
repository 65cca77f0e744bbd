#include "win32/help.h"

#include "win32/files.h"

namespace pipebench {

void RegisterHelp(HTML_HELP& help, Localisation& localisation, HWND owner)
{
    // PIPEBENCH_Deutsch.CHM
    const LocalizedHelpFileFinder finder{LocalizedFilenameMaker(localisation.Language())};
    const std::string file = BesideProgram("PIPEBENCH.CHM");
    help.AddType(kManual, file.c_str(), &finder, "main");
    help.AddType(kDialogHelp, file.c_str(), &finder, "page");
    help.SetWindow(owner);
}

}  // namespace pipebench
