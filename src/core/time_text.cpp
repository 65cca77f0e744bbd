#include "core/decimal.h"
#include "platform/c_locale.h"
#include "platform/clock.h"
#include "platform/date_order.h"

#include <qxutility/core/time_text.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>

namespace {

constexpr std::size_t kTimeSize = 24, kDateSize = 40;  // of the caller's buffers

double WithinInt(double hours)
{
    using Int = std::numeric_limits<int>;
    return std::isnan(hours) ? 0.0 : std::clamp<double>(hours, Int::min(), Int::max());
}

// The whole number that a text starts with; 0, never -0, when it is no number.
double WholeNumber(const char* text, char point)
{
    return std::trunc(qx::ParseDouble(text, point)) + 0.0;
}

qx::platform::LocalTime LocalTimeWithinCalendar(long long time)
{
    constexpr long long kYear1 = -62'135'596'800 + 86'400, kYear9999 = 253'402'300'799 - 86'400;
    return qx::platform::ToLocalTime(std::clamp(time, kYear1, kYear9999));
}

bool MonthComesFirst()
{
    const std::string pattern = qx::platform::ShortDatePattern();
    return !pattern.empty() && (pattern[0] == 'M' || pattern[0] == 'm');
}

}  // namespace

char* QXFormatTime(double hours, char* text, bool showSeconds, bool twoDigitHours)
{
    hours = WithinInt(hours);
    int h = static_cast<int>(hours);
    const double minutes = std::fmod(hours, 1.0) * 60;
    int m = static_cast<int>(minutes);
    const double seconds = 0.5 + std::fmod(minutes, 1.0) * 60;
    int s = static_cast<int>(seconds);
    if (s == 60) {
        ++m;
        s = 0;
    }
    if (m >= 60) {
        m %= 60;
        ++h;
    }
    const int width = twoDigitHours ? 2 : 1;
    if (s == 0 && !showSeconds)
        std::snprintf(text, kTimeSize, "%0*i:%02i", width, h, m);
    else
        std::snprintf(text, kTimeSize, "%0*i:%02i:%02i", width, h, m, s);
    return text;
}

double QXReadTime(const char* text)
{
    const char point = qx::platform::CLocalePoint();
    double hours = qx::ParseDouble(text, point);
    double unit = 60;
    for (const char* separator = std::strpbrk(text, ":;"); separator && unit <= 3600; unit *= 60) {
        hours += WholeNumber(separator + 1, point) / unit;
        separator = std::strpbrk(separator + 1, ":;");
    }
    return hours;
}

void DateAndTime(long long time, char* text)
{
    const auto now = LocalTimeWithinCalendar(time == 0 ? qx::platform::SecondsSince1970() : time);
    int year = now.year - 1900;
    if (year >= 100)
        year -= 100;  // once: 2108 is "108"
    const int hour = now.hour % 12 == 0 ? 12 : now.hour % 12;
    const bool monthFirst = MonthComesFirst();
    std::snprintf(text, kDateSize, "%02i/%02i/%02i %2i:%02i %s", monthFirst ? now.month : now.day,
                  monthFirst ? now.day : now.month, year, hour, now.minute,
                  now.hour >= 12 ? "pm" : "am");
}
