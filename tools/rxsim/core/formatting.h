// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "lineframe.h"
#include "receiver.h"

namespace rxsim {

// "hhmmss.ss" of the epoch's UTC time.
QByteArray utcClock(const Epoch &e, int decimals = 2);
// "ddmm.mmmm" / "dddmm.mmmm" and the hemisphere letter.
QByteArray nmeaLatitude(double degrees, int decimals);
QByteArray nmeaLongitude(double degrees, int decimals);
QByteArray northSouth(double degrees);
QByteArray eastWest(double degrees);

// The satellite number NMEA sentences use: GPS 1-32, SBAS 33-64, GLONASS 65-96,
// Galileo, BDS and QZSS by their own talkers' numbers.
int nmeaPrn(const Satellite &satellite);

// The receiver's differential station id and its signal-mask words.
constexpr const char *kStationId = "\"105\"";
constexpr const char *kGalileoMask = "07";
constexpr const char *kGpsGloBdsMask = "77";

} // namespace rxsim
