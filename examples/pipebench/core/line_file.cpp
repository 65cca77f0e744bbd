#include "core/line_file.h"

#include "core/entry.h"
#include "core/flow/pump_curve.h"
#include "core/results.h"
#include "core/texts.h"
#include "ids.h"

#include <qxutility/core/numbers.h>
#include <qxutility/formats/xml_document.h>
#include <qxutility/formats/xml_writer.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace pipebench {

struct NumberAttribute {
    const char* name;
    double Pipe::*value;
};
static constexpr NumberAttribute kNumbers[] = {
    {"Length", &Pipe::length}, {"Diameter", &Pipe::diameter}, {"Price", &Pipe::pricePerMetre}};

bool WriteLine(const std::string& path, const std::vector<Pipe>& pipes)
{
    XMLWriter xml;
    xml.BeginElement("PipeLine");
    for (const Pipe& pipe : pipes) {
        xml.BeginElement("Pipe");
        xml.AddAttribute("Name", pipe.name.c_str());
        xml.AddAttribute("Material", kMaterials[pipe.material]);
        for (const NumberAttribute& number : kNumbers)
            xml.AddAttribute(number.name, PlainNumberText(pipe.*number.value).c_str());
        xml.EndElement();
    }
    xml.EndElement();
    return xml.SaveToDisk(path.c_str());
}

static std::string Attribute(const XMLElement& element, const char* name)
{
    std::array<char, 400> text{};
    element.ReadAttribute(name, text.data(), text.size() - 1, "");
    return text.data();
}

// NaN, which no field takes, for what is no number.
static double NumberOf(const std::string& text)
{
    double value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc{} && stop == end ? value : std::nan("");
}

static std::optional<Pipe> ReadPipe(const XMLElement& element, const std::vector<Pipe>& others)
{
    const auto material = std::ranges::find(kMaterials, Attribute(element, "Material"));
    Pipe pipe{.name = Attribute(element, "Name"),
              .material = static_cast<std::size_t>(material - kMaterials.begin())};
    for (const NumberAttribute& number : kNumbers)
        pipe.*number.value = NumberOf(Attribute(element, number.name));
    if (material == kMaterials.end() || !IsPossible(pipe, others))
        return {};
    return pipe;
}

static std::string FileName(const std::string& path)
{
    return path.substr(path.find_last_of("/\\:") + 1);
}

std::variant<std::vector<Pipe>, Fault> ReadLine(const std::string& path)
{
    XMLDocument document;
    if (!document.OpenFile(path.c_str()))
        return Fault{IDS_LINE_UNREADABLE, FileName(path)};
    XMLElement* line = document.FindElement("PipeLine");
    if (!line || document.GetError() != xmlNoError)
        return Fault{IDS_NO_LINE, FileName(path)};
    std::vector<Pipe> pipes;
    for (const XMLElement* element = line->FirstElement(); element; element = line->NextElement()) {
        const auto pipe = ReadPipe(*element, pipes);
        if (!pipe)
            return Fault{IDS_BAD_PIPE, Attribute(*element, "Name")};
        pipes.push_back(*pipe);
    }
    return pipes;
}

std::optional<std::string> LineDescription(const Localisation& localisation,
                                           const Settings& settings, const std::string& path)
{
    const auto read = ReadLine(path);
    const auto* pipes = std::get_if<std::vector<Pipe>>(&read);
    if (!pipes)
        return {};
    const HINSTANCE module = localisation.Module();
    const std::string length =
        ValueWithUnit(localisation.Language(), Quantity::Length, Sum(*pipes).length, settings);
    return Sentence(module, IDS_PIPE_COUNT, std::to_string(pipes->size())) + ", " +
           Sentence(module, IDS_TOTAL_LENGTH, length);
}

std::optional<std::string> CurveDescription(const Localisation& localisation,
                                            const Settings& settings, const std::string& path)
{
    const auto read = ReadPumpCurve(path);
    const auto* curve = std::get_if<PumpCurve>(&read);
    if (!curve)
        return {};
    const auto text = [&](Quantity quantity, double metric) {
        const double value = Precision(ToUser(quantity, metric, settings.units), 3);
        return ShortNumberText(localisation.Language(), value) + ' ' +
               UnitName(quantity, settings.units);
    };
    const double head = std::ranges::max(curve->points, {}, &CurvePoint::head).head;
    return Sentence(
        localisation.Module(), IDS_CURVE_REACH,
        text(Quantity::Flow, curve->points.back().flow) + ", " + text(Quantity::Length, head));
}

}  // namespace pipebench
