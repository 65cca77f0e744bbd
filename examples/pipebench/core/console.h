// The program without windows: the texts and numbers that its windows show, on standard output.
#pragma once

#include "core/fault.h"
#include "core/localisation.h"

#include <functional>
#include <string>

namespace pipebench {

// The texts of the library are in the language's ANSI code page, which is 1252 for each language of
// this program; terminals are in UTF-8.
std::string Utf8(const std::string& windows1252);

// Tells the user why an entry cannot be used; the windows do it with a box, see ErrorMessage.
using ReportFault = std::function<void(const Localisation&, const Fault&)>;

// Writes everything in the language in use. `pumpCurve` is the file of the pump curve.
void RunConsole(const Localisation& localisation, const std::string& pumpCurve,
                const ReportFault& report);

}  // namespace pipebench
