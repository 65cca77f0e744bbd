// The atmospheric (barometric) pressure.
#pragma once

#include <qxutility/engineering/units.h>
#include <qxutility/export.h>

// One pressure in seven units at once: either the standard set at sea level (14.7 psi, 101.4 kPa,
// 1.014 bar, 407.6 inH2O, 29.93 inHg, 10357 mmH2O, 760.5 mmHg: the applications' own rounded
// figures, not derived from one another), or conversions of one value, each rounded to 4
// significant digits. There is no field for pascals. The caller supplies the pressure: altitude and
// temperature play no part.
class QX_API CAtmPressure {
  public:
    CAtmPressure();  // at sea level

    void SetToSeaLevel();
    // The sea-level figure in a unit; for pascals and unknown units the one in psi.
    static double SeaLevel(DT_PUNITS units);

    // Sets all fields from a value in any unit. One that EqualDbl finds equal to SeaLevel(units)
    // becomes the exact standard set (in pascals, too, it is compared with 14.7). A value in an
    // unknown unit converts to 0.
    void SetValue(double value, DT_PUNITS units);
    // The field of a unit; for pascals and unknown units the one in psi.
    double Value(DT_PUNITS units) const;

    // Whether EqualDbl finds each field equal to the other's: the tolerance is relative to this
    // object's fields.
    bool operator==(const CAtmPressure& other) const;

    // Takes the value from key "Atmosphere" of section "ID" of an INI file: seven numbers in the
    // order of the units, up to 99 characters, taken as they stand. Creates a missing or empty
    // entry from the current value. Repairs others and writes them back: with two numbers or more,
    // the second is the pressure in kPa; with less, it is the one at sea level.
    void GetFromINI(const char* iniFile);
    // SetValue, and writes the entry. Failures to write are not reported.
    void SetToINI(double value, DT_PUNITS units, const char* iniFile);

  private:
    void WriteToINI(const char* iniFile) const;

    double m_values[7];
};
