#include "core/pipe.h"

#include <algorithm>
#include <numbers>

namespace pipebench {

double Content(const Pipe& pipe)
{
    const double decimetres = pipe.diameter / 100;
    return std::numbers::pi / 4 * decimetres * decimetres * (pipe.length * 10);
}

double Price(const Pipe& pipe)
{
    return pipe.pricePerMetre * pipe.length;
}

Totals Sum(const std::vector<Pipe>& pipes)
{
    Totals totals{};
    for (const Pipe& pipe : pipes) {
        totals.length += pipe.length;
        totals.content += Content(pipe);
        totals.price += Price(pipe);
    }
    return totals;
}

void SortBy(SortKey key, std::vector<Pipe>& pipes)
{
    if (key == SortKey::Name)
        std::ranges::stable_sort(pipes, {}, &Pipe::name);
    else
        std::ranges::stable_sort(pipes, {},
                                 key == SortKey::Length ? &Pipe::length : &Pipe::diameter);
}

std::string FreeName(const std::vector<Pipe>& pipes)
{
    for (int number = 101;; ++number) {
        std::string name = "P-" + std::to_string(number);
        if (std::ranges::find(pipes, name, &Pipe::name) == pipes.end())
            return name;
    }
}

std::vector<Pipe> SamplePipes()
{
    return {
        {"P-101", 1, 12.5, 150, 41.5},  {"P-102", 0, 4.2, 125, 28.75}, {"P-103", 2, 18, 65, 36.4},
        {"P-104", 3, 32.75, 100, 9.95}, {"P-105", 4, 22, 200, 52},
    };
}

}  // namespace pipebench
