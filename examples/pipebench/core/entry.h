// What the user typed about a pipe, and its check.
#pragma once

#include "core/fault.h"
#include "core/number_field.h"
#include "core/pipe.h"

#include <qxutility/config/language.h>

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

// The pipe, or the first field that cannot be taken. `shown` is the pipe that the fields showed
// first (see CheckField), `others` are the pipes that already exist.
std::variant<Pipe, BadEntry> CheckEntry(const CLanguage& language, const PipeEntry& entry,
                                        DT_UNITS units, const Pipe& shown,
                                        const std::vector<Pipe>& others);

// Whether the fields would take a pipe's name and values.
bool IsPossible(const Pipe& pipe, const std::vector<Pipe>& others);

// A pipe as its dialog shows it.
PipeEntry ToEntry(const CLanguage& language, const Pipe& pipe, DT_UNITS units);

}  // namespace pipebench
