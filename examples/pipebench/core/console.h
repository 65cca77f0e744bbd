// The program without windows: the texts and numbers that its windows show, on standard output.
#pragma once

#include "core/entry.h"
#include "core/localisation.h"

#include <functional>
#include <string>

namespace pipebench {

// The texts of the library are in the language's ANSI code page, which is 1252 for each language of
// this program; terminals are in UTF-8.
std::string Utf8(const std::string& windows1252);

// Shows the user a bad entry; the windows do it with a box, see ErrorMessage.
using ReportBadEntry = std::function<void(const Localisation&, const BadEntry&)>;

// Writes everything in the language in use.
void RunConsole(const Localisation& localisation, const ReportBadEntry& report);

}  // namespace pipebench
