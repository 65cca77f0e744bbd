#include "core/decimal.h"
#include "core/decimal_scan.h"
#include "platform/profile.h"

#include <qxutility/core/numbers.h>
#include <qxutility/engineering/atmosphere.h>

#include <algorithm>
#include <iterator>
#include <string>

namespace {

// In the order of DT_PUNITS.
constexpr double kSeaLevel[] = {14.7, 101.4, 1.014, 407.6, 29.93, 10357, 760.5};
constexpr int kUnits = static_cast<int>(std::size(kSeaLevel));

constexpr char kSection[] = "ID", kKey[] = "Atmosphere";
constexpr DWORD kEntrySize = 100;
// The family's applications share the file, whatever locale each of them runs in.
constexpr char kPoint = '.';

int FieldOf(DT_PUNITS units)
{
    return units > DT_PSI && units < kUnits ? units : DT_PSI;
}

}  // namespace

CAtmPressure::CAtmPressure()
{
    SetToSeaLevel();
}

void CAtmPressure::SetToSeaLevel()
{
    std::copy(std::begin(kSeaLevel), std::end(kSeaLevel), m_values);
}

double CAtmPressure::SeaLevel(DT_PUNITS units)
{
    return kSeaLevel[FieldOf(units)];
}

void CAtmPressure::SetValue(double value, DT_PUNITS units)
{
    if (EqualDbl(value, SeaLevel(units)))
        return SetToSeaLevel();
    for (int unit = 0; unit < kUnits; ++unit)
        m_values[unit] = Precision(ConvertPressure(value, units, DT_PUNITS{unit}), 4);
}

double CAtmPressure::Value(DT_PUNITS units) const
{
    return m_values[FieldOf(units)];
}

bool CAtmPressure::operator==(const CAtmPressure& other) const
{
    return std::equal(std::begin(m_values), std::end(m_values), other.m_values, EqualDbl);
}

void CAtmPressure::GetFromINI(const char* iniFile)
{
    const std::string entry = qx::platform::ProfileValue(kSection, kKey, "", kEntrySize, iniFile);
    if (entry.empty())
        return WriteToINI(iniFile);
    double values[kUnits];
    const int count = qx::ScanDoubles(entry.c_str(), kPoint, values);
    if (count == kUnits)
        std::copy(std::begin(values), std::end(values), m_values);
    else
        SetToINI(count >= 2 ? values[DT_KPA] : kSeaLevel[DT_KPA], DT_KPA, iniFile);
}

void CAtmPressure::SetToINI(double value, DT_PUNITS units, const char* iniFile)
{
    SetValue(value, units);
    WriteToINI(iniFile);
}

void CAtmPressure::WriteToINI(const char* iniFile) const
{
    std::string entry;
    for (double value : m_values) {
        char text[qx::kPrintedSize];
        qx::PrintGeneral(value, 6, kPoint, text);
        entry += entry.empty() ? "" : " ";
        entry += text;
    }
    qx::platform::WriteProfileString(kSection, kKey, entry.c_str(), iniFile);
}
