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

} // namespace

double LineFields::number(int i) const
{
    const QStringView text = (*this)[i];
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
