#include "core/entry.h"

#include "core/texts.h"
#include "ids.h"

#include <algorithm>

namespace pipebench {

struct PipeField : NumberField {
    Field field;
    std::string PipeEntry::*text;
    double Pipe::*value;
};

static constexpr PipeField kPipeFields[] = {
    {{Quantity::Length, 0.1, 10'000}, Field::Length, &PipeEntry::length, &Pipe::length},
    {{Quantity::Size, 5, 2'000}, Field::Diameter, &PipeEntry::diameter, &Pipe::diameter},
    {{Quantity::PricePerLength, 0, 100'000}, Field::Price, &PipeEntry::price, &Pipe::pricePerMetre},
};

static std::optional<Fault> CheckName(const std::string& name, const std::vector<Pipe>& others)
{
    if (name.empty())
        return Fault{IDS_NAME_MISSING, {}};
    if (std::ranges::find(others, name, &Pipe::name) != others.end())
        return Fault{IDS_NAME_TAKEN, name};
    return {};
}

std::variant<Pipe, BadEntry> CheckEntry(const CLanguage& language, const PipeEntry& entry,
                                        DT_UNITS units, const Pipe& shown,
                                        const std::vector<Pipe>& others)
{
    Pipe pipe{.name = Trimmed(entry.name), .material = entry.material};
    if (auto fault = CheckName(pipe.name, others))
        return BadEntry{Field::Name, *fault};
    for (const PipeField& field : kPipeFields) {
        const auto value =
            CheckField(language, field, entry.*field.text, units, shown.*field.value);
        if (const auto* fault = std::get_if<Fault>(&value))
            return BadEntry{field.field, *fault};
        pipe.*field.value = std::get<double>(value);
    }
    return pipe;
}

bool IsPossible(const Pipe& pipe, const std::vector<Pipe>& others)
{
    return !CheckName(pipe.name, others) &&
           std::ranges::all_of(kPipeFields, [&pipe](const PipeField& field) {
               return pipe.*field.value >= field.least && pipe.*field.value <= field.most;
           });
}

PipeEntry ToEntry(const CLanguage& language, const Pipe& pipe, DT_UNITS units)
{
    PipeEntry entry;
    entry.name = pipe.name;
    entry.material = pipe.material;
    for (const PipeField& field : kPipeFields)
        entry.*field.text = FieldText(language, field, pipe.*field.value, units);
    return entry;
}

}  // namespace pipebench
