// SPDX-License-Identifier: BSD-3-Clause
#include "ggasentence.h"

#include "receivertypes.h"

#include <cmath>

namespace {
constexpr qint64 kMinuteUnits = 100000; // five decimals of a minute, about 2 cm

// ddmm.mmmmm (or dddmm.mmmmm): rounded as a whole, so 59.999999' becomes the next degree.
QByteArray degreesMinutes(double degrees, int degreeDigits)
{
    const qint64 units = std::llround(std::fabs(degrees) * 60.0 * kMinuteUnits);
    const qint64 wholeDegrees = units / (60 * kMinuteUnits);
    const qint64 minuteUnits = units % (60 * kMinuteUnits);
    return QByteArray::number(wholeDegrees).rightJustified(degreeDigits, '0')
        + QByteArray::number(minuteUnits / kMinuteUnits).rightJustified(2, '0') + '.'
        + QByteArray::number(minuteUnits % kMinuteUnits).rightJustified(5, '0');
}

QByteArray optional(double value, int decimals)
{
    return isKnown(value) ? QByteArray::number(value, 'f', decimals) : QByteArray();
}

// GGA has no codes for SBAS and PPP; both are corrected solutions.
int ggaQuality(FixQuality quality)
{
    switch (quality) {
    case FixQuality::Sbas:
    case FixQuality::Ppp:
        return int(FixQuality::Dgnss);
    default:
        return int(quality);
    }
}
} // namespace

QByteArray ggaFromFix(const FixInfo &fix)
{
    if (!fix.hasPosition())
        return {};
    const QDateTime utc = fix.utc.isValid() ? fix.utc.toUTC() : QDateTime::currentDateTimeUtc();
    const QTime time = utc.time();
    // GGA's altitude is above mean sea level; with only the ellipsoidal height known, a
    // separation of 0 keeps altitude plus separation right.
    const bool hasMsl = isKnown(fix.heightMsl);
    const double altitude = hasMsl ? fix.heightMsl : fix.heightEllipsoid;
    const double separation = !isKnown(fix.heightEllipsoid) ? kUnknown
        : hasMsl                                            ? fix.heightEllipsoid - fix.heightMsl
                                                            : 0.0;
    QByteArray body = "GPGGA,";
    body += time.toString(QStringLiteral("hhmmss.zzz")).left(9).toLatin1() + ',';
    body += degreesMinutes(fix.lat, 2) + (fix.lat < 0 ? ",S," : ",N,");
    body += degreesMinutes(fix.lon, 3) + (fix.lon < 0 ? ",W," : ",E,");
    body += QByteArray::number(ggaQuality(fix.quality)) + ',';
    body += (fix.satellitesUsed >= 0 ? QByteArray::number(fix.satellitesUsed).rightJustified(2, '0') : QByteArray()) + ',';
    body += optional(fix.hdop, 1) + ',';
    body += optional(altitude, 3) + ",M,";
    body += optional(separation, 3) + ",M,";
    body += optional(fix.correctionAge, 1) + ',';
    char checksum = 0;
    for (const char c : body)
        checksum ^= c;
    return '$' + body + '*' + QByteArray::number(uchar(checksum), 16).toUpper().rightJustified(2, '0') + "\r\n";
}
