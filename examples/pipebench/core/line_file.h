// Files that hold a line of pipes: XML, numbers with a '.', the same in every language.
//
//   <PipeLine>
//     <Pipe Name="P-101" Material="Copper" Length="12.5" Diameter="65" Price="36.4"></Pipe>
//   </PipeLine>
#pragma once

#include "core/fault.h"
#include "core/localisation.h"
#include "core/settings.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace pipebench {

inline constexpr char kLineFiles[] = "*.pbl", kCurveFiles[] = "*.dat";

// False when the file cannot be written; what was there then stays.
bool WriteLine(const std::string& path, const std::vector<Pipe>& pipes);
// The pipes, or why the file cannot be taken: it is no line, or has a pipe that the dialog for
// pipes would not take either.
std::variant<std::vector<Pipe>, Fault> ReadLine(const std::string& path);

// What a list of files says of a line and of a pump curve; nothing when the file is none.
std::optional<std::string> LineDescription(const Localisation& localisation,
                                           const Settings& settings, const std::string& path);
std::optional<std::string> CurveDescription(const Localisation& localisation,
                                            const Settings& settings, const std::string& path);

}  // namespace pipebench
