// Looking up and loading curves against the plain loops: a scan from the last point down, and a
// sort by exchanges.
#include "support/bench.h"

#include <qxutility/engineering/point_array.h>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

using Row = std::vector<double>;

struct Curve {
    Row x, y;
};

Curve RisingCurve(int count)
{
    Curve curve;
    for (int i = 0; i < count; ++i) {
        curve.x.push_back(1.0 + i);
        curve.y.push_back(100.0 - 0.001 * i * i);
    }
    return curve;
}

// Positions all over the curve, in the order of a sweep or in none.
Row Positions(int count, bool sweep)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> anywhere(0.5, count + 0.5);
    Row at(4096);
    for (double& each : at)
        each = anywhere(random);
    if (sweep)
        std::sort(at.begin(), at.end());
    return at;
}

__attribute__((noinline)) double ScanForY(const Curve& curve, double x)
{
    const Row &xs = curve.x, &ys = curve.y;
    std::size_t i = xs.size() - 1;
    while (i > 0 && x < xs[i])
        --i;
    if (i == xs.size() - 1)
        --i;
    return ys[i + 1] - (xs[i + 1] - x) * (ys[i + 1] - ys[i]) / (xs[i + 1] - xs[i]);
}

void SortByExchanges(Curve& curve)
{
    for (std::size_t i = 0; i + 1 < curve.x.size(); ++i) {
        for (std::size_t j = i + 1; j < curve.x.size(); ++j) {
            if (curve.x[j] < curve.x[i]) {
                std::swap(curve.x[i], curve.x[j]);
                std::swap(curve.y[i], curve.y[j]);
            }
        }
    }
}

void CompareLookUp(qx::bench::Table& table, int count, bool sweep, qx::bench::Goal goal)
{
    using qx::bench::DoNotOptimize;
    const Curve curve = RisingCurve(count);
    const CPointArray points(count, curve.x.data(), curve.y.data());
    const Row at = Positions(count, sweep);
    const auto ours = [&] {
        for (double x : at)
            DoNotOptimize(points.GetY(x));
    };
    const auto scan = [&] {
        for (double x : at)
            DoNotOptimize(ScanForY(curve, x));
    };
    const std::string name =
        "GetY of " + std::to_string(count) + (sweep ? " points, sweep" : " points");
    table.Compare(name, ours, {{"scan", scan, goal}}, at.size());
}

// `distinct` abscissas in no order.
void CompareLoading(qx::bench::Table& table, int count, int distinct)
{
    Curve curve = RisingCurve(count);
    std::mt19937 random(2);
    for (double& x : curve.x)
        x = std::uniform_int_distribution<int>(1, distinct)(random);
    const auto ours = [&] {
        CPointArray points(count, curve.x.data(), curve.y.data());
        qx::bench::DoNotOptimize(points);
    };
    const auto exchanges = [&] {
        Curve copy = curve;
        SortByExchanges(copy);
        qx::bench::DoNotOptimize(copy);
    };
    const std::string name =
        "load " + std::to_string(count) + ", " + std::to_string(distinct) + " abscissas";
    table.Compare(name, ours, {{"exchange sort", exchanges}});
}

}  // namespace

int main(int argc, char** argv)
{
    using qx::bench::Faster;
    qx::bench::Table table("Curves", argc, argv);
    for (bool sweep : {false, true}) {
        CompareLookUp(table, 8, sweep, Faster(1));
        CompareLookUp(table, 1000, sweep, Faster(10));
        CompareLookUp(table, 10000, sweep, Faster(50));
    }
    CompareLoading(table, 2000, 1'000'000);
    CompareLoading(table, 2000, 50);
    return table.Print();
}
