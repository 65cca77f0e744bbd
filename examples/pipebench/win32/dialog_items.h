// What the dialogs do with their controls.
#pragma once

#include "core/fault.h"
#include "core/localisation.h"

#include <qxutility/engineering/units.h>

#include <windows.h>

#include <string>

namespace pipebench {

std::string TextOfItem(HWND dialog, int id);
void SetItemText(HWND dialog, int id, const std::string& text);
// Moves the focus to a control and selects its text, ready to be typed over.
void FocusItem(HWND dialog, int id);
// A list of the unit systems, and the one chosen in it.
void FillUnits(HWND dialog, const Localisation& localisation, DT_UNITS units);
DT_UNITS ChosenUnits(HWND dialog);
// Shows the message of a fault with the program's name as title.
void ShowFault(HWND owner, const Localisation& localisation, const Fault& fault);

}  // namespace pipebench
