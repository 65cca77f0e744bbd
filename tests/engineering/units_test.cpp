#include <qxutility/engineering/units.h>

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace {

using Double = std::numeric_limits<double>;

constexpr int kUnknown[] = {-1, 8, 100, std::numeric_limits<int>::max(),
                            std::numeric_limits<int>::min()};

}  // namespace

TEST(Units, UnknownOnesGiveZeroForTemperaturesAndPressures)
{
    for (int unit : kUnknown) {
        EXPECT_EQ(0, ConvertPressure(1, DT_PUNITS{unit}, DT_PSI)) << unit;
        EXPECT_EQ(0, ConvertPressure(1, DT_PSI, DT_PUNITS{unit})) << unit;
        EXPECT_EQ(0, ConvertPressure(1, DT_PUNITS{unit}, DT_PUNITS{unit})) << unit;
        EXPECT_EQ(0, ConvertTemp(5, DT_TUNITS{unit}, DT_DEGF)) << unit;
        EXPECT_EQ(0, ConvertTemp(5, DT_DEGF, DT_TUNITS{unit})) << unit;
        double values[] = {1, Double::quiet_NaN()};
        qx::ConvertPressures(values, values, 2, DT_PUNITS{unit}, DT_BAR);
        EXPECT_EQ(0, values[0]) << unit;
        EXPECT_EQ(0, values[1]) << unit;
    }
    EXPECT_EQ(0, ConvertTemp(5, DT_TUNITS{4}, DT_DEGF));
}

TEST(Units, UnknownOnesAreMetricForSizesAndLengths)
{
    for (int unit : kUnknown) {
        const DT_UNITS units{unit};
        EXPECT_EQ(2 / 25.4, ConvertSize(2, units, DT_ENGLISH)) << unit;
        EXPECT_EQ(2 / 25.4, ConvertSize(2, units, DT_METRIC)) << unit;
        EXPECT_EQ(2 / 25.4, ConvertSize(2, DT_METRIC, units)) << unit;
        EXPECT_EQ(2 * 25.4, ConvertSize(2, DT_ENGLISH, units)) << unit;
        EXPECT_EQ(2, ConvertSize(2, units, units)) << unit;
        EXPECT_EQ(2 * 3.28, ConvertLength(2, units, DT_METRIC)) << unit;
        EXPECT_EQ(2 / 3.28, ConvertLength(2, DT_ENGLISH, units)) << unit;
        EXPECT_EQ(2, ConvertLength(2, units, units)) << unit;
    }
}

TEST(Units, NoValueIsRefused)
{
    for (int from = DT_PSI; from <= DT_PA; ++from) {
        for (int to = DT_PSI; to <= DT_PA; ++to) {
            const auto convert = [&](double value) {
                return ConvertPressure(value, DT_PUNITS{from}, DT_PUNITS{to});
            };
            EXPECT_TRUE(std::isnan(convert(Double::quiet_NaN()))) << from << " to " << to;
            EXPECT_EQ(-Double::infinity(), convert(-Double::infinity())) << from << " to " << to;
            EXPECT_TRUE(std::signbit(convert(-0.0))) << from << " to " << to;
        }
    }
    EXPECT_EQ(Double::denorm_min(), ConvertPressure(Double::denorm_min(), DT_PA, DT_PA));
    EXPECT_EQ(1000 * Double::denorm_min(), ConvertPressure(Double::denorm_min(), DT_KPA, DT_PA));
    EXPECT_TRUE(std::isnan(ConvertTemp(Double::quiet_NaN(), DT_DEGF, DT_DEGC)));
}

TEST(Units, ManyPressuresConvertAsOneByOne)
{
    std::vector<double> values, results;
    for (int i = 0; i < 37; ++i) {
        values.push_back(i * 1.7 - 20);
        results.assign(values.size(), -1);
        qx::ConvertPressures(values.data(), results.data(), values.size(), DT_PA, DT_MMHG);
        for (std::size_t k = 0; k < values.size(); ++k)
            EXPECT_EQ(ConvertPressure(values[k], DT_PA, DT_MMHG), results[k]) << k << " of " << i;
    }
    qx::ConvertPressures(nullptr, nullptr, 0, DT_PA, DT_MMHG);
}
