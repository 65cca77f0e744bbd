#include "core/commands.h"

#include "ids.h"

namespace pipebench {

static CommandState EnabledIf(bool possible)
{
    return possible ? CommandState::Enabled : CommandState::Disabled;
}

static CommandState CheckedIf(bool on)
{
    return on ? CommandState::Checked : CommandState::Enabled;
}

static bool IsLanguage(int command)
{
    return command >= IDM_LANGUAGE_FIRST && command <= IDM_LANGUAGE_LAST;
}

static bool IsDecimals(int command)
{
    return command >= IDM_DECIMALS_0 && command <= IDM_DECIMALS_3;
}

static CommandState LanguageState(std::size_t index, const Situation& now)
{
    return index < now.languages ? CheckedIf(index == now.language) : CommandState::Hidden;
}

static CommandState ViewState(bool shown, const Situation& now)
{
    return now.lineOpen ? CheckedIf(shown) : CommandState::Disabled;
}

bool IsChoice(int command)
{
    return IsLanguage(command) || IsDecimals(command);
}

bool OpensDialog(int command)
{
    switch (command) {
        case IDM_OPEN:
        case IDM_SAVE_AS:
        case IDM_PAGE_SETUP:
        case IDM_SAVE_PDF:
        case IDM_SEND:
        case IDM_ADD:
        case IDM_EDIT:
        case IDM_FLOW:
        case IDM_OPTIONS:
        case IDM_ABOUT:
            return true;
        default:
            return false;
    }
}

CommandState StateOf(int command, const Situation& now)
{
    if (IsLanguage(command))
        return LanguageState(static_cast<std::size_t>(command - IDM_LANGUAGE_FIRST), now);
    if (IsDecimals(command))
        return CheckedIf(command - IDM_DECIMALS_0 == now.settings.decimals);
    switch (command) {
        case IDM_NEW:
        case IDM_OPEN:
        case IDM_SAMPLE:
        case IDM_PAGE_SETUP:
        case IDM_EXIT:
        case IDM_OPTIONS:
        case IDM_ABOUT:
        case IDM_HELP:
            return CommandState::Enabled;
        case IDM_SAVE:
            return EnabledIf(now.lineChanged);
        case IDM_SAVE_AS:
        case IDM_START_PAGE:
        case IDM_ADD:
            return EnabledIf(now.lineOpen);
        case IDM_CHECK:
        case IDM_PRINT:
        case IDM_SAVE_PDF:
        case IDM_SEND:
        case IDM_SORT_NAME:
        case IDM_SORT_LENGTH:
        case IDM_SORT_DIAMETER:
            return EnabledIf(now.anyPipe);
        case IDM_DUPLICATE:
        case IDM_DELETE:
        case IDM_EDIT:
        case IDM_FLOW:
            return EnabledIf(now.pipeSelected);
        case IDM_TREE:
            return ViewState(now.settings.view.tree, now);
        case IDM_SKETCH:
            return ViewState(now.settings.view.sketch, now);
        case IDM_STATUS_BAR:
            return CheckedIf(now.settings.view.statusBar);
        case IDM_FLOATING_TOOLS:
            return CheckedIf(now.toolsFloat);
        default:
            return CommandState::Hidden;
    }
}

CommandState ButtonStateOf(int command, const Situation& now)
{
    const bool ofLine = command == IDM_START_PAGE || command == IDM_SORT_NAME ||
                        command == IDM_TREE || command == IDM_SKETCH;
    return ofLine && !now.lineOpen ? CommandState::Hidden : StateOf(command, now);
}

}  // namespace pipebench
