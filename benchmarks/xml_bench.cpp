// Loading XML texts, and reading attributes.
#include "support/bench.h"

#include <qxutility/formats/xml_document.h>

#include <cstdio>
#include <cstring>
#include <map>
#include <memory>
#include <pugixml.hpp>
#include <random>
#include <rapidxml/rapidxml.hpp>
#include <string>
#include <vector>

namespace {

using qx::bench::Faster;

// A toolbar file as the toolbar manager writes it, with at least `size` bytes.
std::string ToolbarFile(std::size_t size)
{
    std::mt19937 random(1);
    std::string text;
    for (int id = 1; text.size() < size; ++id) {
        text += "<Toolbar ID=\"" + std::to_string(id) + "\" Editable=\"1\" Name=\"Toolbar " +
                std::to_string(id) + "\" Hidden=\"1\" UnDocked=\"0\" X=\"" +
                std::to_string(random() % 1000) + "\" Y=\"" + std::to_string(random() % 100) +
                "\">\r\n";
        for (int i = 0; i < 12 && text.size() < size; ++i) {
            if (i % 4 == 3) {
                text += "  <Button>\r\n    <Style>separator</Style>\r\n  </Button>\r\n";
                continue;
            }
            text += "  <Button>\r\n    <iBitmap>" + std::to_string(random() % 100) +
                    "</iBitmap>\r\n    <idCommand>" + std::to_string(40000 + random() % 1000) +
                    "</idCommand>\r\n";
            text +=
                i % 5 == 0 ? "    <Style>dropdown</Style>\r\n  </Button>\r\n" : "  </Button>\r\n";
        }
        text += "</Toolbar>\r\n";
    }
    return text;
}

constexpr int kAttributes = 12;

std::string AttributeName(int index)
{
    static const char* const kNames[kAttributes] = {"ID",       "Name",      "Material", "Diameter",
                                                    "Length",   "Roughness", "From",     "To",
                                                    "Pressure", "Flow",      "Velocity", "Comment"};
    return kNames[index];
}

// Pipes of a network with all that is known about them in attributes.
std::string AttributeFile(std::size_t size)
{
    std::mt19937 random(2);
    std::string text;
    while (text.size() < size) {
        text += "<Pipe";
        for (int i = 0; i < kAttributes; ++i)
            text += " " + AttributeName(i) + "=\"value " + std::to_string(random() % 100000) + "\"";
        text += "></Pipe>\r\n";
    }
    return text;
}

void LoadOurs(const std::string& text)
{
    XMLDocument document;
    document.UseData(text.data(), static_cast<int>(text.size()));
    qx::bench::DoNotOptimize(document.FirstElement());
}

// Parses in a copy of the text, which it changes. One buffer serves all rounds.
void LoadPugixml(const std::string& text, std::vector<char>& copy)
{
    std::memcpy(copy.data(), text.data(), text.size());
    pugi::xml_document document;
    document.load_buffer_inplace(copy.data(), text.size(),
                                 pugi::parse_default | pugi::parse_fragment);
    qx::bench::DoNotOptimize(document.first_child());
}

// Leaves the text as it is, so that no copy is made.
void LoadRapidxml(std::string& text)
{
    rapidxml::xml_document<> document;
    document.parse<rapidxml::parse_fastest>(text.data());
    qx::bench::DoNotOptimize(document.first_node());
}

void CompareLoading(qx::bench::Table& table, const std::string& name, std::string text, double goal)
{
    std::vector<char> copy(text.size());
    table.Compare(name, [&] { LoadOurs(text); },
                  {{"pugixml, in place", [&] { LoadPugixml(text, copy); }, Faster(goal)},
                   {"RapidXML, fastest", [&] { LoadRapidxml(text); }, Faster(1)},
                   {"memcpy of the text", [&] {
                        std::memcpy(copy.data(), text.data(), text.size());
                        qx::bench::DoNotOptimize(copy.data());
                    }}});
}

}  // namespace

int main(int argc, char** argv)
{
    qx::bench::Table table("XML", argc, argv);
    for (const auto& [size, suffix] : {std::pair<std::size_t, const char*>{65536, ", 64 KiB"},
                                       {std::size_t{8} << 20, ", 8 MiB"}}) {
        CompareLoading(table, std::string("attributes") + suffix, AttributeFile(size), 4);
        CompareLoading(table, std::string("toolbars") + suffix, ToolbarFile(size), 1.5);
    }
    return table.Print();
}
