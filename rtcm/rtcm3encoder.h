// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "rtcm3messages.h"

#include <QByteArray>
#include <QVector>
#include <QtGlobal>

#include <limits>

// Frames a station's messages as a base station sends them: 1005 (where the station's
// antenna reference point is) and MSM4 observations (pseudorange, phase range, lock
// time and C/N0 per satellite signal). Works on plain numbers so that any source of
// observations can send them.

// Marks a range that was not measured.
constexpr double kRtcm3NoRange = std::numeric_limits<double>::quiet_NaN();

struct Rtcm3StationPosition
{
    int stationId = 0; // 0..4095
    double ecefX = 0.0; // antenna reference point, m
    double ecefY = 0.0;
    double ecefZ = 0.0;
    bool gps = true; // the systems the station serves
    bool glonass = true;
    bool galileo = true;
    bool referenceStation = false; // a computed (virtual) station rather than a real one
};

struct Rtcm3SignalObservation
{
    int signalId = 0;                 // the system's MSM signal number, 1..32
    double pseudorange = kRtcm3NoRange; // m
    double phaseRange = kRtcm3NoRange;  // carrier phase times wavelength, m
    double lockTime = 0.0;            // s of continuous lock
    bool halfCycleAmbiguity = false;
    double cn0 = 0.0;                 // dB-Hz; 0: not measured
};

struct Rtcm3SatelliteObservation
{
    int satelliteId = 0; // the system's own number, 1..64 (GLONASS: slot)
    QVector<Rtcm3SignalObservation> observations;
};

struct Rtcm3MsmEpoch
{
    Rtcm3System system = Rtcm3System::GPS;
    int stationId = 0;
    qint64 gpsMilliseconds = 0; // since the GPS epoch (1980-01-06)
    int leapSeconds = 18;       // GPS minus UTC, for GLONASS time
    bool moreMessagesFollow = false; // other systems of the same epoch come after these
    QVector<Rtcm3SatelliteObservation> satellites;
};

namespace Rtcm3Encoder {

constexpr int kMaxMsmCells = 64;

// A whole frame around a payload of at most 1023 bytes: preamble, length, CRC-24Q.
QByteArray frame(const QByteArray &payload);

QByteArray stationPosition(const Rtcm3StationPosition &station);

// One frame per message; an epoch with more satellite-signal cells than one message
// holds is split over several, all but the last marked as followed by more.
// Satellites and signals outside 1..64 and 1..32 are left out.
QVector<QByteArray> msm4(const Rtcm3MsmEpoch &epoch);

int msm4MessageNumber(Rtcm3System system); // 1074, 1084, ... 1134; 0 for None
// The 30-bit epoch time of the MSM header in the system's own time scale.
quint32 msmEpochTime(Rtcm3System system, qint64 gpsMilliseconds, int leapSeconds);
// The 4-bit lock time indicator of MSM4 for a lock time in seconds.
int lockTimeIndicator(double seconds);

} // namespace Rtcm3Encoder
