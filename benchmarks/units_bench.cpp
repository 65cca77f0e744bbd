// Pressure conversion of a million values against loops written by hand, one per pair of units.
#include "support/bench.h"

#include <qxutility/engineering/units.h>

#include <cstddef>
#include <vector>

namespace {

using Values = std::vector<double>;

constexpr std::size_t kCount = 1'000'000;

void KpaToPaByHand(const Values& from, Values& to)  // the least work there is: one product
{
    for (std::size_t i = 0; i < kCount; ++i)
        to[i] = from[i] * 1000;
}
void PsiToKpaByHand(const Values& from, Values& to)
{
    for (std::size_t i = 0; i < kCount; ++i)
        to[i] = from[i] * 100 / 14.5;
}
void PaToMmhgByHand(const Values& from, Values& to)
{
    for (std::size_t i = 0; i < kCount; ++i)
        to[i] = from[i] / 1000 * 2.03602 / 6.895 * 25.4;
}

constexpr struct {
    const char* name;
    DT_PUNITS from, to;
    void (*byHand)(const Values&, Values&);
} kPairs[] = {
    {"kPa to Pa", DT_KPA, DT_PA, KpaToPaByHand},
    {"psi to kPa", DT_PSI, DT_KPA, PsiToKpaByHand},
    {"Pa to mmHg", DT_PA, DT_MMHG, PaToMmhgByHand},
};

}  // namespace

int main(int argc, char** argv)
{
    using namespace qx::bench;
    Table table("Pressure conversion, one value of a million", argc, argv);
    Values in(kCount), out(kCount);
    for (std::size_t i = 0; i < kCount; ++i)
        in[i] = 0.001 * static_cast<double>(i);

    for (const auto& pair : kPairs) {
        const auto byHand = [&] {
            pair.byHand(in, out);
            DoNotOptimize(out);
        };
        const auto atOnce = [&] {
            qx::ConvertPressures(in.data(), out.data(), kCount, pair.from, pair.to);
            DoNotOptimize(out);
        };
        const auto oneByOne = [&] {
            for (std::size_t i = 0; i < kCount; ++i)
                out[i] = ConvertPressure(in[i], pair.from, pair.to);
            DoNotOptimize(out);
        };
        const std::string name = pair.name;
        table.Compare(name + ", at once", atOnce, {{"by hand", byHand, CostAtMost(1.5)}}, kCount);
        table.Compare(name + ", one by one", oneByOne, {{"by hand", byHand}}, kCount);
    }
    return table.Print();
}
