// The calculations that applications print give the same bits in every build.
#include "engineering/expected_bits.h"

#include <qxutility/core/time_text.h>
#include <qxutility/engineering/atmosphere.h>
#include <qxutility/engineering/point_array.h>
#include <qxutility/engineering/units.h>

#include <bit>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <string>

using namespace qx::test;

namespace {

std::uint64_t Bits(double value)
{
    return std::bit_cast<std::uint64_t>(value);
}

class RandomDoubles {
  public:
    std::uint64_t Next() { return m_state = m_state * 6364136223846793005u + 1442695040888963407u; }

    // Between 1e-5 and 1e5; with `wide`, one in 16 of any magnitude, denormals included.
    double Double(bool wide)
    {
        const std::uint64_t mantissa = Next() >> 12, r = Next();
        const std::uint64_t exponent =
            wide && r >> 60 == 0 ? (r >> 32) % 2047 : 1023 - 16 + ((r >> 32) & 31);
        return std::bit_cast<double>((r >> 59 & 1) << 63 | exponent << 52 | mantissa);
    }

  private:
    std::uint64_t m_state = 1;
};

class Digest {
  public:
    void Add(std::uint64_t bits) { m_digest = (m_digest ^ bits) * 1099511628211u; }
    std::uint64_t Value() const { return m_digest; }

  private:
    std::uint64_t m_digest = 14695981039346656037u;
};

void ExpectBits(const Expected& expected, const std::function<double(double)>& function,
                const std::string& what)
{
    EXPECT_EQ(expected.of14_7, Bits(function(14.7))) << what;
    RandomDoubles random;
    Digest digest;
    for (int i = 0; i < 1000; ++i)
        digest.Add(Bits(function(random.Double(true))));
    EXPECT_EQ(expected.digest, digest.Value()) << what;
}

template <typename Units, std::size_t kCount>
void ExpectTable(const Expected (&table)[kCount][kCount], double (*convert)(double, Units, Units))
{
    for (int from = 0; from < static_cast<int>(kCount); ++from) {
        for (int to = 0; to < static_cast<int>(kCount); ++to) {
            ExpectBits(
                table[from][to],
                [&](double value) { return convert(value, Units{from}, Units{to}); },
                std::to_string(from) + " to " + std::to_string(to));
        }
    }
}

}  // namespace

TEST(Bits, OfPressures)
{
    ExpectTable(kPressures, ConvertPressure);
}

TEST(Bits, OfManyPressuresAtOnce)
{
    ExpectTable<DT_PUNITS>(kPressures, [](double value, DT_PUNITS from, DT_PUNITS to) {
        double values[] = {1, 2, value, 3, 4};
        qx::ConvertPressures(values, values, std::size(values), from, to);
        return values[2];
    });
}

TEST(Bits, OfTemperatures)
{
    ExpectTable(kTemperatures, ConvertTemp);
}

TEST(Bits, OfSizesAndLengths)
{
    ExpectTable(kSizes, ConvertSize);
    ExpectTable(kLengths, ConvertLength);
}

TEST(Bits, OfCurves)
{
    const double x[] = {0.0, 0.1, 0.7, 1.3, 2.9, 3.3, 7.7, 10.1, 11.3, 19.9, 23.1};
    const double y[] = {33.3, 33.1, 32.9, 31.7, 30.3, 29.9, 22.1, 17.7, 13.9, -0.1, -8.7};
    const CPointArray curve(static_cast<int>(std::size(x)), x, y);
    ExpectBits(
        kCurve, [&](double at) { return curve.GetY(at); }, "curve");
}

TEST(Bits, OfAtmospheres)
{
    RandomDoubles random;
    Digest digest;
    CAtmPressure pressure;
    for (int i = 0; i < 1000; ++i) {
        pressure.SetValue(random.Double(false), DT_PUNITS{i % 8});
        for (int unit = DT_PSI; unit <= DT_MMHG; ++unit)
            digest.Add(Bits(pressure.Value(DT_PUNITS{unit})));
    }
    EXPECT_EQ(kAtmospheres, digest.Value());
}

TEST(Bits, OfTimes)
{
    RandomDoubles random;
    Digest digest;
    for (int i = 0; i < 1000; ++i) {
        char text[24];
        for (const char c : std::string(QXFormatTime(random.Double(false), text, true, false)))
            digest.Add(static_cast<unsigned char>(c));
    }
    EXPECT_EQ(kTimeTexts, digest.Value());
}

TEST(Bits, OfTimesRead)
{
    RandomDoubles random;
    Digest digest;
    for (int i = 0; i < 1000; ++i) {
        std::string text;
        for (int part = 0; part < 3; ++part)
            text += (part == 0 ? "" : ":") + std::to_string(random.Next() % 1000);
        digest.Add(Bits(QXReadTime(text.c_str())));
    }
    EXPECT_EQ(kTimes, digest.Value());
}
