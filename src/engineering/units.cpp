#include "engineering/conversion.h"

#include <qxutility/engineering/units.h>

namespace qx {

namespace {

constexpr double kFiveNinths = 5.0 / 9.0;
constexpr Conversion v = kValue;

// Row: from; column: to. In the order of the enumerators.
// clang-format off
constexpr Conversion kTemperatures[4][4] = {
    // F
    {v, v + 459.67, (v - 32) * kFiveNinths, (v - 32) * kFiveNinths + 273.15},
    // R
    {v - 459.67, v, (v - 459.67 - 32) * kFiveNinths, (v - 459.67 - 32) * kFiveNinths + 273.15},
    // C
    {v * 1.8 + 32, v * 1.8 + 32 + 459.67, v, v + 273.15},
    // K
    {(v - 273.15) * 1.8 + 32, (v - 273.15) * 1.8 + 32 + 459.67, v - 273.15, v},
};

constexpr Conversion kPressures[8][8] = {
    // psi
    {v,
     v * 100 / 14.5,
     v / 14.5,
     v * 27.7276,
     v * 2.03602,
     v * 27.7276 * 25.4,
     v * 2.03602 * 25.4,
     v * 100000 / 14.5},
    // kPa
    {v / 100 * 14.5,
     v,
     v / 100,
     v * 27.7276 / 6.895,
     v * 2.03602 / 6.895,
     v * 27.7276 / 6.895 * 25.4,
     v * 2.03602 / 6.895 * 25.4,
     v * 1000},
    // bar
    {v * 14.5,
     v * 100,
     v,
     v * 100 * 27.7276 / 6.895,
     v * 100 * 2.03602 / 6.895,
     v * 100 * 27.7276 / 6.895 * 25.4,
     v * 100 * 2.03602 / 6.895 * 25.4,
     v * 100000},
    // inch of water
    {v / 27.7276,
     v * 6.895 / 27.7276,
     v * 6.895 / 27.7276 / 100,
     v,
     v * 2.03602 / 27.7276,
     v * 25.4,
     v * 2.03602 / 27.7276 * 25.4,
     v * 6.895 / 27.7276 * 1000},
    // inch of mercury
    {v / 2.03602,
     v * 6.895 / 2.03602,
     v * 6.895 / 2.03602 / 100,
     v * 27.7276 / 2.03602,
     v,
     v * 27.7276 / 2.03602 * 25.4,
     v * 25.4,
     v * 6.895 / 2.03602 * 1000},
    // millimetre of water
    {v / 27.7276 / 25.4,
     v * 6.895 / 27.7276 / 25.4,
     v * 6.895 / 27.7276 / 25.4 / 100,
     v / 25.4,
     v * 2.03602 / 27.7276 / 25.4,
     v,
     v * 2.03602 / 27.7276,
     v * 6.895 / 27.7276 / 25.4 * 1000},
    // millimetre of mercury
    {v / 2.03602 / 25.4,
     v * 6.895 / 2.03602 / 25.4,
     v * 6.895 / 2.03602 / 25.4 / 100,
     v * 27.7276 / 2.03602 / 25.4,
     v / 25.4,
     v * 27.7276 / 2.03602,
     v,
     v * 6.895 / 2.03602 / 25.4 * 1000},
    // pascal
    {v / 1000 / 100 * 14.5,
     v / 1000,
     v / 100000,
     v / 1000 * 27.7276 / 6.895,
     v / 1000 * 2.03602 / 6.895,
     v / 1000 * 27.7276 / 6.895 * 25.4,
     v / 1000 * 2.03602 / 6.895 * 25.4,
     v},
};
// clang-format on

}  // namespace

}  // namespace qx

double ConvertSize(double value, DT_UNITS from, DT_UNITS to)
{
    if (from == to)
        return value;
    return from == DT_ENGLISH ? value * 25.4 : value / 25.4;
}

double ConvertLength(double value, DT_UNITS from, DT_UNITS to)
{
    if (from == to)
        return value;
    return from == DT_ENGLISH ? value / 3.28 : value * 3.28;
}

double ConvertTemp(double value, DT_TUNITS from, DT_TUNITS to)
{
    return qx::ConversionFunctions<qx::kTemperatures>::Convert(value, from, to);
}

double ConvertPressure(double value, DT_PUNITS from, DT_PUNITS to)
{
    return qx::ConversionFunctions<qx::kPressures>::Convert(value, from, to);
}

namespace qx {

void ConvertPressures(const double* values, double* results, std::size_t count, DT_PUNITS from,
                      DT_PUNITS to)
{
    ConversionFunctions<kPressures>::ConvertAll(values, results, count, from, to);
}

}  // namespace qx
