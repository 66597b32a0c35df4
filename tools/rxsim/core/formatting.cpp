// SPDX-License-Identifier: BSD-3-Clause
#include "formatting.h"

namespace rxsim {

namespace {
QByteArray degreesMinutes(double degrees, int degreeWidth, int decimals)
{
    qint64 scale = 1;
    for (int i = 0; i < decimals; ++i)
        scale *= 10;
    // Whole units of the last minute decimal, so rounding can never show 60 minutes.
    const qint64 units = qint64(std::llround(std::fabs(degrees) * 60.0 * double(scale)));
    const qint64 perDegree = 60 * scale;
    const qint64 whole = units / perDegree;
    const qint64 minuteUnits = units % perDegree;
    QByteArray text = padded(whole, degreeWidth) + padded(minuteUnits / scale, 2);
    if (decimals > 0)
        text += '.' + padded(minuteUnits % scale, decimals);
    return text;
}
} // namespace

QByteArray utcClock(const Epoch &e, int decimals)
{
    const QTime t = e.utc.time();
    QByteArray text = padded(t.hour(), 2) + padded(t.minute(), 2) + padded(t.second(), 2);
    if (decimals > 0) {
        int fraction = t.msec();
        for (int i = decimals; i < 3; ++i)
            fraction /= 10;
        for (int i = 3; i < decimals; ++i)
            fraction *= 10;
        text += '.' + padded(fraction, decimals);
    }
    return text;
}

QByteArray nmeaLatitude(double degrees, int decimals)
{
    return degreesMinutes(degrees, 2, decimals);
}

QByteArray nmeaLongitude(double degrees, int decimals)
{
    return degreesMinutes(degrees, 3, decimals);
}

QByteArray northSouth(double degrees)
{
    return degrees < 0.0 ? "S" : "N";
}

QByteArray eastWest(double degrees)
{
    return degrees < 0.0 ? "W" : "E";
}

int nmeaPrn(const Satellite &s)
{
    switch (s.system) {
    case GnssSystem::Gps: return s.prn;
    case GnssSystem::Sbas: return s.prn - 87;
    case GnssSystem::Glonass: return s.prn + 64;
    case GnssSystem::Galileo: return s.prn;
    case GnssSystem::Bds: return s.prn;
    case GnssSystem::Qzss: return s.prn - 192;
    }
    return 0;
}

} // namespace rxsim
