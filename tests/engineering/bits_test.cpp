// The calculations that applications print give the same bits in every build.
#include <qxutility/core/time_text.h>
#include <qxutility/engineering/atmosphere.h>
#include <qxutility/engineering/point_array.h>
#include <qxutility/engineering/units.h>

#include <bit>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <string>

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

// The results for 14.7 and for 1000 values of all magnitudes.
void AddResults(Digest& digest, const std::function<double(double)>& function)
{
    digest.Add(Bits(function(14.7)));
    RandomDoubles random;
    Digest results;
    for (int i = 0; i < 1000; ++i)
        results.Add(Bits(function(random.Double(true))));
    digest.Add(results.Value());
}

// Of all pairs of units: from the first to each, from the second to each ...
template <typename Units>
std::uint64_t OfPairs(int units, double (*convert)(double, Units, Units))
{
    Digest digest;
    for (int pair = 0; pair < units * units; ++pair) {
        AddResults(digest, [&](double value) {
            return convert(value, Units{pair / units}, Units{pair % units});
        });
    }
    return digest.Value();
}

// The results to the last bit, the same for every build. Computed by another implementation of IEEE
// doubles (Python's) from the tables as printed; not to be made anew from this library's results.
constexpr std::uint64_t kPressures = 0x47ab62b4e2b1b32d, kTemperatures = 0xb4e3e92bad717bb0,
                        kSizes = 0x94e5b7d49220e3bc, kLengths = 0x0008e83e3b4aafeb,
                        kCurve = 0x80e4e837df2fdf6c;
// The texts of QXFormatTime with seconds, character by character.
constexpr std::uint64_t kTimeTexts = 0x7eda5c450ad797e8;
// The hours of "h:m:s" with numbers below 1000.
constexpr std::uint64_t kTimes = 0xaf3f05f3e1b9b644;
// The fields of CAtmPressure for values in all units in turn.
constexpr std::uint64_t kAtmospheres = 0x078bd66d33e9553b;

}  // namespace

TEST(Bits, OfConversions)
{
    EXPECT_EQ(kPressures, OfPairs(8, ConvertPressure));
    EXPECT_EQ(kTemperatures, OfPairs(4, ConvertTemp));
    EXPECT_EQ(kSizes, OfPairs(2, ConvertSize));
    EXPECT_EQ(kLengths, OfPairs(2, ConvertLength));
    EXPECT_EQ(kPressures, OfPairs<DT_PUNITS>(8,
                                             [](double value, DT_PUNITS from, DT_PUNITS to) {
                                                 double values[] = {1, 2, value, 3, 4};
                                                 qx::ConvertPressures(values, values,
                                                                      std::size(values), from, to);
                                                 return values[2];
                                             }))
        << "many at once";
}

TEST(Bits, OfCurves)
{
    const double x[] = {0.0, 0.1, 0.7, 1.3, 2.9, 3.3, 7.7, 10.1, 11.3, 19.9, 23.1};
    const double y[] = {33.3, 33.1, 32.9, 31.7, 30.3, 29.9, 22.1, 17.7, 13.9, -0.1, -8.7};
    const CPointArray curve(static_cast<int>(std::size(x)), x, y);
    Digest digest;
    AddResults(digest, [&](double at) { return curve.GetY(at); });
    EXPECT_EQ(kCurve, digest.Value());
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
