#include "core/units.h"

namespace pipebench {

// Metric and English, in the order of Quantity; \263 is a superscript 3 in code page 1252.
static constexpr const char* kUnitNames[][2] = {
    {"m\263/h", "gpm"}, {"mm", "in"},   {"m", "ft"},  {"kg/m\263", "lb/ft\263"}, {"mPa s", "cP"},
    {"m/s", "ft/s"},    {"kPa", "psi"}, {"l", "gal"}, {"/ m", "/ ft"},           {"", ""},
};

static double CubicInch()  // in cubic metres
{
    const double inch = ConvertSize(1, DT_ENGLISH, DT_METRIC) / 1000;
    return inch * inch * inch;
}

// What the library has no conversion for follows from its inch.
static double Gallon()  // US, in cubic metres
{
    return 231 * CubicInch();
}

static double PoundPerCubicFoot()  // in kg/m3
{
    return 0.45359237 / (1728 * CubicInch());
}

static double Scaled(double value, double metricUnit, DT_UNITS from, DT_UNITS to)
{
    if (from == to)
        return value;
    return from == DT_METRIC ? value / metricUnit : value * metricUnit;
}

static DT_PUNITS PressureUnit(DT_UNITS units)
{
    return units == DT_METRIC ? DT_KPA : DT_PSI;
}

static double Convert(Quantity quantity, double value, DT_UNITS from, DT_UNITS to)
{
    switch (quantity) {
        case Quantity::Size:
            return ConvertSize(value, from, to);
        case Quantity::Length:
        case Quantity::Velocity:
            return ConvertLength(value, from, to);
        case Quantity::Pressure:
            return ConvertPressure(value, PressureUnit(from), PressureUnit(to));
        case Quantity::Flow:
            return Scaled(value, Gallon() * 60, from, to);
        case Quantity::Density:
            return Scaled(value, PoundPerCubicFoot(), from, to);
        case Quantity::Volume:
            return Scaled(value, Gallon() * 1000, from, to);
        case Quantity::PricePerLength:
            return ConvertLength(value, to, from);  // the longer the unit, the more it costs
        case Quantity::Viscosity:                   // 1 mPa s is 1 cP
        case Quantity::Number:
            break;
    }
    return value;
}

double ToUser(Quantity quantity, double metric, DT_UNITS units)
{
    return Convert(quantity, metric, DT_METRIC, units);
}

double FromUser(Quantity quantity, double value, DT_UNITS units)
{
    return Convert(quantity, value, units, DT_METRIC);
}

const char* UnitName(Quantity quantity, DT_UNITS units)
{
    return kUnitNames[static_cast<int>(quantity)][units == DT_METRIC ? 0 : 1];
}

}  // namespace pipebench
