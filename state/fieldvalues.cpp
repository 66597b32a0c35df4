// SPDX-License-Identifier: BSD-3-Clause
#include "fieldvalues.h"

#include "receivertypes.h"

#include <QLocale>

namespace {

const QLocale &cLocale()
{
    static const QLocale locale = QLocale::c();
    return locale;
}

int digitsValue(QStringView text)
{
    int value = 0;
    for (QChar c : text) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return -1;
        value = value * 10 + (c.unicode() - '0');
    }
    return value;
}

// Plain decimals ("-12.5", "4530.123456") as receivers write them, exactly as a full
// conversion would read them: up to 15 digits are an exact integer, and dividing it by
// an exact power of ten rounds once. Anything else (exponents, long mantissas) is left
// to the locale's conversion.
bool plainDecimal(QStringView text, double *value)
{
    static constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const QChar *c = text.data();
    const QChar *end = c + text.size();
    const bool minus = c != end && c->unicode() == '-';
    if (c != end && (minus || c->unicode() == '+'))
        ++c;
    qint64 mantissa = 0;
    int digits = 0, decimals = -1;
    for (; c != end; ++c) {
        const ushort u = c->unicode();
        if (u >= '0' && u <= '9') {
            mantissa = mantissa * 10 + (u - '0');
            ++digits;
            if (decimals >= 0)
                ++decimals;
        } else if (u == '.' && decimals < 0) {
            decimals = 0;
        } else {
            return false;
        }
        if (digits > 15)
            return false;
    }
    if (digits == 0)
        return false;
    const double magnitude = double(mantissa) / kPowersOfTen[qMax(decimals, 0)];
    *value = minus ? -magnitude : magnitude;
    return true;
}

} // namespace

double LineFields::number(int i) const
{
    const QStringView text = (*this)[i];
    double plain = 0;
    if (plainDecimal(text, &plain))
        return plain;
    bool ok = false;
    const double value = text.isEmpty() ? 0.0 : cLocale().toDouble(text, &ok);
    return ok && std::isfinite(value) ? value : kUnknown;
}

int LineFields::integer(int i) const
{
    const QStringView text = (*this)[i];
    return text.isEmpty() || text.size() > 9 ? -1 : digitsValue(text);
}

bool LineFields::hex(int i, quint32 &value) const
{
    const QStringView text = (*this)[i];
    if (text.isEmpty() || text.size() > 8)
        return false;
    value = 0;
    for (QChar c : text) {
        const ushort lower = c.unicode() | 0x20;
        if (c.unicode() >= '0' && c.unicode() <= '9')
            value = value << 4 | quint32(c.unicode() - '0');
        else if (lower >= 'a' && lower <= 'f')
            value = value << 4 | quint32(lower - 'a' + 10);
        else
            return false;
    }
    return true;
}

double LineFields::nmeaDegrees(int i, double limit) const
{
    const double packed = number(i);
    const QStringView hemisphere = (*this)[i + 1];
    if (!isKnown(packed) || packed < 0 || hemisphere.size() != 1)
        return kUnknown;
    const double degrees = std::floor(packed / 100.0);
    const double minutes = packed - degrees * 100.0;
    const double value = degrees + minutes / 60.0;
    if (minutes >= 60.0 || value > limit)
        return kUnknown;
    switch (hemisphere.at(0).unicode()) {
    case 'N':
    case 'E':
        return value;
    case 'S':
    case 'W':
        return -value;
    }
    return kUnknown;
}

int LineFields::nmeaTimeOfDayMs(int i) const
{
    const QStringView text = (*this)[i];
    if (text.size() < 6)
        return -1;
    const int hours = digitsValue(text.left(2)), minutes = digitsValue(text.mid(2, 2));
    const double seconds = number(i) - std::floor(number(i) / 100.0) * 100.0;
    if (hours < 0 || hours > 23 || minutes < 0 || minutes > 59 || !isKnown(seconds) || seconds >= 61.0
        || digitsValue(text.mid(4, 2)) < 0)
        return -1;
    return (hours * 60 + minutes) * 60000 + int(std::lround(seconds * 1000.0));
}

QDate LineFields::nmeaDate(int i) const
{
    const QStringView text = (*this)[i];
    if (text.size() != 6)
        return QDate();
    const int year = digitsValue(text.mid(4, 2));
    if (year < 0)
        return QDate();
    return QDate(year < 80 ? 2000 + year : 1900 + year, digitsValue(text.mid(2, 2)), digitsValue(text.left(2)));
}
