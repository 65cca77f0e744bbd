// Where the program's files are.
#pragma once

#include "core/localisation.h"

#include <windows.h>

#include <optional>
#include <string>

namespace pipebench {

// The pump curve that comes with the program.
inline constexpr char kSampleCurve[] = "PUMP_CURVE.DAT";

// The path of a file beside the program.
std::string BesideProgram(const std::string& name);
// The path of a pump curve's file as the user wrote it: a bare name is one beside the program.
std::string CurvePath(const std::string& file);
// Lets the user choose the file of a pump curve; nothing when they cancel.
std::optional<std::string> ChooseCurveFile(HWND owner, const Localisation& localisation);

}  // namespace pipebench
