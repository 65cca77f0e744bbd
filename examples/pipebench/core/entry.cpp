#include "core/entry.h"

#include "core/texts.h"
#include "ids.h"

#include <qxutility/core/numbers.h>

#include <algorithm>

namespace pipebench {

// One number field: where it stands and what it may hold.
struct NumberField {
    Field field;
    std::string PipeEntry::*text;
    double Pipe::*value;
    double least, most;
    int outOfRangeId;
};

static constexpr NumberField kNumberFields[] = {
    {Field::Length, &PipeEntry::length, &Pipe::length, 0.1, 10'000, IDS_BAD_LENGTH},
    {Field::Diameter, &PipeEntry::diameter, &Pipe::diameter, 5, 2'000, IDS_BAD_DIAMETER},
    {Field::Price, &PipeEntry::price, &Pipe::pricePerMetre, 0, 100'000, IDS_BAD_PRICE},
};

static std::string Trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::optional<double> ReadNumber(const std::string& text)
{
    std::string number = Trimmed(text);
    double value = 0;
    if (number.empty() || IsNumber(number.data(), &value) == 0)
        return {};
    return value;
}

static std::optional<BadEntry> CheckName(const std::string& name, const std::vector<Pipe>& others)
{
    if (name.empty())
        return BadEntry{Field::Name, {IDS_NAME_MISSING, {}}};
    if (std::ranges::find(others, name, &Pipe::name) != others.end())
        return BadEntry{Field::Name, {IDS_NAME_TAKEN, name}};
    return {};
}

std::variant<Pipe, BadEntry> CheckEntry(const PipeEntry& entry, const std::vector<Pipe>& others)
{
    Pipe pipe{.name = Trimmed(entry.name), .material = entry.material};
    if (auto bad = CheckName(pipe.name, others))
        return *bad;
    for (const NumberField& field : kNumberFields) {
        const std::string& text = entry.*field.text;
        const auto value = ReadNumber(text);
        if (!value)
            return BadEntry{field.field, {IDS_NOT_A_NUMBER, text}};
        if (*value < field.least || *value > field.most)
            return BadEntry{field.field, {field.outOfRangeId, text}};
        pipe.*field.value = *value;
    }
    return pipe;
}

PipeEntry ToEntry(const CLanguage& language, const Pipe& pipe)
{
    return {.name = pipe.name,
            .length = ShortNumberText(language, pipe.length),
            .diameter = ShortNumberText(language, pipe.diameter),
            .price = ShortNumberText(language, pipe.pricePerMetre),
            .material = pipe.material};
}

}  // namespace pipebench
