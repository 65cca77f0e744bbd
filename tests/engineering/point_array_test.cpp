#include "engineering/exchange_sort.h"

#include <qxutility/engineering/point_array.h>

#include <bit>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <sstream>
#include <utility>
#include <vector>

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

using Row = std::vector<double>;

// The table as described, loop by loop.
struct PlainTable {
    Row x, y;
    int count = 0;

    PlainTable(Row givenX, Row givenY) : x(std::move(givenX)), y(std::move(givenY))
    {
        const int n = static_cast<int>(x.size());
        const int k = n > 0 && x[0] == 0.0 ? 1 : 0;
        Exchange();
        int run = k;
        while (run < n && x[run] == 0.0)
            ++run;
        x.erase(x.begin() + k, x.begin() + run);
        y.erase(y.begin() + k, y.begin() + run);
        count = n == 1 ? 0 : n - (run - k);
    }

    void Exchange()
    {
        for (std::size_t i = 0; i + 1 < x.size(); ++i) {
            for (std::size_t j = i + 1; j < x.size(); ++j) {
                if (x[j] < x[i]) {
                    std::swap(x[i], x[j]);
                    std::swap(y[i], y[j]);
                }
            }
        }
    }

    double GetY(double at) const
    {
        if (count < 2)
            return count == 0 ? 0.0 : y[0];
        int i = count - 1;
        while (i > 0 && at < x[i])
            --i;
        if (i == count - 1)
            --i;
        return y[i + 1] - (x[i + 1] - at) * (y[i + 1] - y[i]) / (x[i + 1] - x[i]);
    }
};

CPointArray Table(const Row& x, const Row& y)
{
    return CPointArray(static_cast<int>(x.size()), x.data(), y.data());
}

std::vector<std::uint64_t> Bits(const Row& row)
{
    std::vector<std::uint64_t> bits;
    for (double value : row)
        bits.push_back(std::bit_cast<std::uint64_t>(value));
    return bits;
}

bool SameBitsOrNan(double a, double b)
{
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) || (a != a && b != b);
}

int Below(int limit, std::mt19937& random)
{
    return std::uniform_int_distribution<int>(0, limit - 1)(random);
}

// Abscissas from a few values, so that many are equal, with zeros of both signs, infinities and
// sometimes NaN; the ordinates number the points.
std::pair<Row, Row> RandomPoints(std::mt19937& random, int most)
{
    static constexpr double kOdd[] = {0.0, -0.0, kNan, kInfinity, -kInfinity, 5e-324};
    const int count = Below(most + 1, random);
    const int values = 1 + Below(12, random);
    const int oddIn100 = Below(3, random) * 15;
    const int lowest = values / 3;
    Row x, y;
    for (int i = 0; i < count; ++i) {
        const bool odd = Below(100, random) < oddIn100;
        x.push_back(odd ? kOdd[Below(std::size(kOdd), random)] : Below(values, random) - lowest);
        y.push_back(i);
    }
    return {x, y};
}

std::string Text(const Row& row)
{
    std::ostringstream text;
    for (double value : row)
        text << (std::signbit(value) ? "-" : "") << std::abs(value) << ' ';
    return text.str();
}

}  // namespace

TEST(ExchangeSort, HasTheOutcomeOfTheExchangesForEveryShortRow)
{
    // All rows of up to 7 points over four abscissas, NaN among them.
    static constexpr double kValues[] = {1.0, 2.0, 3.0, kNan};
    for (std::size_t length = 0; length <= 7; ++length) {
        for (std::uint32_t row = 0; row < 1u << (2 * length); ++row) {
            Row x, y;
            for (std::size_t i = 0; i < length; ++i) {
                x.push_back(kValues[row >> (2 * i) & 3]);
                y.push_back(static_cast<double>(i));
            }
            PlainTable plain({}, {});
            plain.x = x;
            plain.y = y;
            plain.Exchange();
            const std::string given = Text(x);
            qx::ExchangeSort(x, y);
            ASSERT_EQ(Bits(plain.x), Bits(x)) << given;
            ASSERT_EQ(plain.y, y) << given;
        }
    }
}

TEST(PointArray, AnswersAsTheDescribedScanDoes)
{
    std::mt19937 random(21);
    for (int round = 0; round < 3000; ++round) {
        const auto [x, y] = RandomPoints(random, round % 100 == 0 ? 700 : 24);
        const PlainTable plain(x, y);
        const CPointArray table = Table(x, y);
        ASSERT_EQ(plain.count > 0, table.Valid()) << Text(x);
        Row at = {kNan, kInfinity, -kInfinity, -0.0};
        for (int i = 0; i < 40; ++i)
            at.push_back(Below(60, random) / 4.0 - 6.0);
        for (double each : at) {
            ASSERT_PRED2(SameBitsOrNan, plain.GetY(each), table.GetY(each))
                << "x " << each << " in " << Text(x);
        }
    }
}

// Quirks that files in the field rely on; the scan has them too.
TEST(PointArray, KeepsAPointAtZeroOnlyWhenGivenFirst)
{
    EXPECT_EQ(14, Table({10, 0, 5}, {2, 10, 8}).GetY(0));
    EXPECT_EQ(1, Table({-0.0, 0, 3}, {1, 2, 4}).GetY(0));
    // With a negative abscissa the kept place is that one, and the point at 0 goes.
    EXPECT_EQ(2.5, Table({0, -1, 3}, {9, 2, 4}).GetY(0));
    EXPECT_EQ(kInfinity, Table({3, 3}, {1, 2}).GetY(4));
}

TEST(PointArray, IsEmptyWithoutPointsAndAfterLoadingOne)
{
    const double one[] = {3};
    CPointArray tables[] = {CPointArray(7),
                            Table({}, {}),
                            Table({3}, {4}),
                            Table({0}, {4}),
                            CPointArray(-5, one, one),
                            CPointArray(1 << 30, nullptr, one)};
    for (const CPointArray& table : tables) {
        EXPECT_FALSE(table.Valid());
        EXPECT_FALSE(table.InRange(3));
        EXPECT_EQ(0.0, table.GetY(3));
    }
}

TEST(PointArray, OfOnePointAnswersItsOrdinateEverywhere)
{
    const CPointArray table = Table({3, 0}, {1, 9});
    EXPECT_TRUE(table.Valid());
    EXPECT_TRUE(table.InRange(3));
    EXPECT_EQ(1, table.GetY(3));
    EXPECT_EQ(1, table.GetY(-100));
}

TEST(PointArray, RangeIncludesBothEnds)
{
    const CPointArray table = Table({2, 4}, {0, 0});
    for (double x : {2.0, 3.0, 4.0})
        EXPECT_TRUE(table.InRange(x)) << x;
    for (double x : {std::nextafter(2.0, 0.0), std::nextafter(4.0, 5.0), kNan, kInfinity})
        EXPECT_FALSE(table.InRange(x)) << x;
}

TEST(PointArray, WidensSinglePrecision)
{
    const float x[] = {0.1f, 1.0f}, y[] = {0.1f, 0.3f};
    CPointArray table(0);
    table.Init(2, x, y);
    EXPECT_EQ(static_cast<double>(0.3f), table.GetY(1.0));
    EXPECT_TRUE(table.InRange(0.1f));
    EXPECT_FALSE(table.InRange(0.1));  // 0.1f is above 0.1
}

TEST(PointArray, CopiesOwnTheirPoints)
{
    CPointArray original = Table({1, 2}, {1, 2});
    CPointArray copy = original;
    CPointArray assigned(0);
    assigned = original;
    original.Init(0, static_cast<const double*>(nullptr), nullptr);
    EXPECT_FALSE(original.Valid());
    EXPECT_EQ(1.5, copy.GetY(1.5));
    EXPECT_EQ(1.5, assigned.GetY(1.5));
    copy = *&copy;
    EXPECT_EQ(1.5, copy.GetY(1.5));
}
