// Rounding, formatting and parsing of engineering values against the C library's printf and scanf.
#include "support/bench.h"

#include <qxutility/core/numbers.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr std::size_t kCount = 4096;

// Values of 10^from to 10^to, evenly over the magnitudes, both signs.
std::vector<double> Values(double from, double to)
{
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> exponent(from, to), coin(-1, 1);
    std::vector<double> values;
    for (std::size_t i = 0; i < kCount; ++i)
        values.push_back(std::copysign(std::pow(10.0, exponent(random)), coin(random)));
    return values;
}

struct Range {
    std::string name;
    std::vector<double> values;
};
const Range kEveryday = {"1e-4 to 1e6", Values(-4, 6)};
const Range kWide = {"1e-9 to 1e15", Values(-9, 15)};

template <class F>
auto ForAll(const Range& range, F function)
{
    return [&range, function] {
        for (const double value : range.values)
            qx::bench::DoNotOptimize(function(value));
    };
}

// What the functions are defined by: a text, and the text read back.
template <class Print>
auto PrintAndScan(Print print)
{
    return ForAll(kWide, [print](double value) {
        char text[64];
        double result = 0;
        print(text, value);
        std::sscanf(text, "%lg", &result);
        return result;
    });
}

template <class Ours, class Print>
void CompareRounding(qx::bench::Table& table, const std::string& name, Ours ours, Print print)
{
    table.Compare(name + ", " + kWide.name, ForAll(kWide, ours),
                  {{"snprintf + sscanf", PrintAndScan(print), qx::bench::Faster(60)}}, kCount);
}

void CompareTexts(qx::bench::Table& table, const Range& range)
{
    const auto print = ForAll(range, [](double v) {
        char text[64];
        return std::snprintf(text, sizeof text, "%-1.4g", v);
    });
    const std::vector<qx::bench::Peer> peers = {{"snprintf", print, qx::bench::Faster(10)}};
    char text[40];
    table.Compare("RoundIt with text, " + range.name,
                  ForAll(range, [&](double v) { return RoundIt(v, text); }), peers, kCount);
    table.Compare("RoundDbl with text, " + range.name,
                  ForAll(range, [&](double v) { return RoundDbl(text, v); }), peers, kCount);
}

void CompareParsing(qx::bench::Table& table, const Range& range)
{
    std::vector<std::string> texts;
    char text[40];
    for (const double value : range.values) {
        RoundDbl(text, value);
        texts.emplace_back(text);
    }
    const auto parse = [&](double (*function)(const char*)) {
        return [&texts, function] {
            for (const auto& t : texts)
                qx::bench::DoNotOptimize(function(t.c_str()));
        };
    };
    table.Compare("Number, texts of " + range.name, parse(Number),
                  {{"atof", parse(std::atof), qx::bench::Faster(4)}}, kCount);
}

}  // namespace

int main(int argc, char** argv)
{
    qx::bench::Table table("Numbers", argc, argv);
    CompareRounding(
        table, "DPlaces 3", [](double v) { return DPlaces(v, 3); },
        [](char* t, double v) { std::snprintf(t, 64, "%1.*f", 3, v); });
    CompareRounding(
        table, "Precision 4", [](double v) { return Precision(v, 4); },
        [](char* t, double v) { std::snprintf(t, 64, "%1.*g", 4, v); });
    CompareRounding(table, "CleanDbl", CleanDbl,
                    [](char* t, double v) { std::snprintf(t, 64, "%1.7g", v); });
    for (const Range* range : {&kEveryday, &kWide}) {
        CompareTexts(table, *range);
        CompareParsing(table, *range);
    }
    return table.Print();
}
