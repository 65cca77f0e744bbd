// The pipes of a line and what is computed from them.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace pipebench {

// English wordings; shown through the language object.
inline constexpr std::array<const char*, 5> kMaterials = {"Steel", "Stainless steel", "Copper",
                                                          "PVC", "Cast iron"};

struct Pipe {
    std::string name;
    std::size_t material = 0;  // index into kMaterials
    double length = 0;         // metres
    double diameter = 0;       // inside, millimetres
    double pricePerMetre = 0;  // in the user's currency
    bool operator==(const Pipe&) const = default;
};

double Content(const Pipe& pipe);  // litres
double Price(const Pipe& pipe);

struct Totals {
    double length, content, price;
};
Totals Sum(const std::vector<Pipe>& pipes);

enum class SortKey { Name, Length, Diameter };
void SortBy(SortKey key, std::vector<Pipe>& pipes);

// A name that no pipe has: "P-101", "P-102" ...
std::string FreeName(const std::vector<Pipe>& pipes);

// The line that the program starts with.
std::vector<Pipe> SamplePipes();

}  // namespace pipebench
