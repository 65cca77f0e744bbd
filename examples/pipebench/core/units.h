// The two unit systems that the user can work in. The program computes in the metric one.
#pragma once

#include <qxutility/engineering/units.h>

namespace pipebench {

enum class Quantity {
    Flow,
    Size,
    Length,
    Density,
    Viscosity,
    Velocity,
    Pressure,
    Volume,
    PricePerLength,
    Number
};

// A metric value in the user's units, and back.
double ToUser(Quantity quantity, double metric, DT_UNITS units);
double FromUser(Quantity quantity, double value, DT_UNITS units);
// "m/s", "psi" ...: the same in every language. Empty for a plain number.
const char* UnitName(Quantity quantity, DT_UNITS units);

}  // namespace pipebench
