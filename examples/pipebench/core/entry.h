// What the user typed about a pipe, and its check.
#pragma once

#include "core/fault.h"
#include "core/pipe.h"

#include <qxutility/config/language.h>

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace pipebench {

enum class Field { Name, Length, Diameter, Price };

struct PipeEntry {
    std::string name, length, diameter, price;
    std::size_t material = 0;
};

struct BadEntry {
    Field field;
    Fault fault;
};

// A number in the form of the library's language ("12,5" where the decimal character is a comma);
// nothing when the text holds anything else.
std::optional<double> ReadNumber(const std::string& text);

// The pipe, or the first field that cannot be taken. `others` are the pipes that already exist.
std::variant<Pipe, BadEntry> CheckEntry(const PipeEntry& entry, const std::vector<Pipe>& others);

// A pipe as its dialog shows it.
PipeEntry ToEntry(const CLanguage& language, const Pipe& pipe);

}  // namespace pipebench
