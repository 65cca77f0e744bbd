// Conversion of sizes, lengths, temperatures and pressures.
//
// The factors are the applications' own rounded engineering values, and each conversion is a fixed
// sequence of operations, so that there and back is not always the starting value. Saved designs
// and printed reports rely on these results to the last bit: none of them is to be "corrected".
//
//     factor           what it stands for                                  exact physical value
//     25.4             millimetres in an inch                              25.4
//     3.28             feet in a metre                                     3.28084
//     459.67           Rankine at 0 F                                      459.67
//     273.15           kelvin at 0 C                                       273.15
//     14.5             psi in a bar; 100/14.5 kPa in a psi                 14.50377
//     6.895            kPa in a psi, on the way to and from columns of
//                      water and mercury only                              6.894757
//     27.7276          inches of water in a psi (water at about 20 C)      27.68 at 4 C
//     2.03602          inches of mercury in a psi (mercury at 0 C)         2.03602
//     100, 1000, 1e5   kPa in a bar, Pa in a kPa, Pa in a bar              the same
//
// NaN and infinities pass through the arithmetic; nothing is checked or clamped.
#pragma once

#include <qxutility/export.h>

#include <cstddef>

// The unit system of a size or a length.
enum DT_UNITS : int {
    DT_ENGLISH = 0,  // sizes in inches, lengths in feet
    DT_METRIC = 1,   // sizes in millimetres, lengths in metres
};

enum DT_TUNITS : int {
    DT_DEGF = 0,    // degree Fahrenheit
    DT_DEGR = 1,    // degree Rankine
    DT_DEGC = 2,    // degree Celsius
    DT_KELVIN = 3,  // kelvin
};

enum DT_PUNITS : int {
    DT_PSI = 0,    // pound-force per square inch
    DT_KPA = 1,    // kilopascal
    DT_BAR = 2,    // bar
    DT_INH2O = 3,  // inch of water
    DT_INHG = 4,   // inch of mercury
    DT_MMH2O = 5,  // millimetre of water
    DT_MMHG = 6,   // millimetre of mercury
    DT_PA = 7,     // pascal
};

// A pipe size. Equal units, known or not, give the value back; every other `from` than DT_ENGLISH
// counts as metric.
QX_API double ConvertSize(double value, DT_UNITS from, DT_UNITS to);
// An elevation or pipe length; units as for ConvertSize.
QX_API double ConvertLength(double value, DT_UNITS from, DT_UNITS to);
// An unknown unit on either side gives 0.
QX_API double ConvertTemp(double value, DT_TUNITS from, DT_TUNITS to);
// A gauge or absolute pressure, or a difference of pressures. An unknown unit gives 0.
QX_API double ConvertPressure(double value, DT_PUNITS from, DT_PUNITS to);

namespace qx {

// ConvertPressure of `count` values at once, with the same results to the last bit and several
// times as fast. `results` may be `values`, but must not overlap it otherwise.
QX_API void ConvertPressures(const double* values, double* results, std::size_t count,
                             DT_PUNITS from, DT_PUNITS to);

}  // namespace qx
