// Loading XML texts from memory to a document that is ready for use, its destruction included, and
// reading attributes.
#include "support/bench.h"

#include <qxutility/formats/xml_document.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <malloc.h>
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

void ReadOurs(XMLDocument& document, const std::vector<std::string>& attributes)
{
    char value[80];
    for (XMLElement* each = document.FirstElement(); each; each = document.NextElement())
        for (const std::string& name : attributes)
            each->ReadAttribute(name.c_str(), value, sizeof value, "");
    qx::bench::DoNotOptimize(value);
}

template <typename Take>
void ReadTheirs(const pugi::xml_document& document, const std::vector<std::string>& attributes,
                Take take)
{
    for (pugi::xml_node each = document.first_child(); each; each = each.next_sibling())
        for (const std::string& name : attributes)
            take(each.attribute(name.c_str()).value());
}

// Reads all attributes of all elements by name. pugixml hands out its own text; ours is copied.
void CompareReading(qx::bench::Table& table, const std::string& name, const std::string& text,
                    const std::vector<std::string>& attributes)
{
    XMLDocument ours;
    ours.UseData(text.data(), static_cast<int>(text.size()));
    pugi::xml_document theirs;
    theirs.load_buffer(text.data(), text.size(), pugi::parse_default | pugi::parse_fragment);
    const auto elements = std::distance(theirs.begin(), theirs.end());
    char copy[80];
    const auto copied = [&copy](const char* value) {
        std::memcpy(copy, value, std::min(std::strlen(value) + 1, sizeof copy));
        qx::bench::DoNotOptimize(copy);
    };
    table.Compare(
        name, [&] { ReadOurs(ours, attributes); },
        {{"pugixml",
          [&] {
              ReadTheirs(theirs, attributes,
                         [](const char* value) { qx::bench::DoNotOptimize(value); });
          },
          Faster(0.5)},
         {"pugixml, copied", [&] { ReadTheirs(theirs, attributes, copied); }}},
        static_cast<std::size_t>(elements) * attributes.size());
}

std::size_t Count(XMLElement& parent)
{
    std::size_t count = 0;
    for (XMLElement* child = parent.FirstElement(); child; child = parent.NextElement())
        count += 1 + Count(*child);
    return count;
}

// What the heap holds for a loaded document beside its text.
void PrintMemory(const char* name, const std::string& text)
{
    const auto used = [] { return ::mallinfo2().uordblks + ::mallinfo2().hblkhd; };
    XMLDocument document;
    const std::size_t before = used();
    document.UseData(text.data(), static_cast<int>(text.size()));
    const std::size_t taken = used() - before - text.size();
    std::printf("%s: %.1f bytes for each of %zu elements beside the text, goal <= 80\n", name,
                static_cast<double>(taken) / static_cast<double>(Count(document)), Count(document));
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
    const std::vector<std::string> ofToolbar = {"ID",       "Editable", "Name", "Hidden",
                                                "UnDocked", "X",        "Y"};
    std::vector<std::string> ofPipe;
    for (int i = 0; i < kAttributes; ++i)
        ofPipe.push_back(AttributeName(i));
    CompareReading(table, "7 attributes by name", ToolbarFile(65536), ofToolbar);
    CompareReading(table, "12 attributes by name", AttributeFile(65536), ofPipe);

    const int result = table.Print();
    PrintMemory("toolbars, 64 KiB", ToolbarFile(65536));
    PrintMemory("toolbars, 8 MiB", ToolbarFile(std::size_t{8} << 20));
    return result;
}
