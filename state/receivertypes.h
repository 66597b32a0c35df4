// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QDateTime>
#include <QMap>
#include <QString>
#include <QVector>
#include <cmath>
#include <limits>

// The receiver as typed values: what the receiver state keeps and what the views and
// the JSON report show. Plain values, so a snapshot can be copied to any consumer.

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();
inline bool isKnown(double value) { return !std::isnan(value); }

enum class GnssSystem { GPS, GLONASS, Galileo, BDS, QZSS, SBAS, NavIC, Unknown };

// "GPS", "GLONASS", "Galileo", "BDS", "QZSS", "SBAS", "NavIC" ("unknown").
QString systemName(GnssSystem system);
// G, R, E, C, J, S, I ('?').
QChar systemLetter(GnssSystem system);
// The systems in the order the views group them.
const QVector<GnssSystem> &knownSystems();

// From worst to best is not an order here: the values follow GGA's quality field
// where it has one.
enum class FixQuality { NoFix, Single, Dgnss, Pps, RtkFixed, RtkFloat, DeadReckoning, Manual, Simulation, Sbas, Ppp };

// "no fix", "single", "DGNSS", "PPS", "RTK fixed", "RTK float", "dead reckoning",
// "manual", "simulation", "SBAS", "PPP".
QString fixQualityName(FixQuality quality);
// 0xRRGGBB: the one colour of a fix quality wherever a track or a legend shows it (the
// views, the map, an exported KML file).
quint32 fixQualityRgb(FixQuality quality);
const QVector<FixQuality> &allFixQualities();

struct SignalInfo
{
    QString name;          // "L1 C/A", "L2C", "E5a", "B1I", ...
    int nmeaSignalId = -1; // NMEA 4.11 signal id when the source gave one
    double cn0 = kUnknown; // dB-Hz; unknown when the source left it empty
};

struct SatelliteInfo
{
    GnssSystem system = GnssSystem::Unknown;
    int prn = 0; // as the system numbers it (GPS 1-32, GLONASS slot 1-32, SBAS 120-158, ...)
    double elevation = kUnknown; // degrees
    double azimuth = kUnknown;   // degrees clockwise from north
    bool used = false;           // in the position solution
    QVector<SignalInfo> trackedSignals; // by signal name
    double bestCn0() const;
};

struct FixInfo
{
    QDateTime utc; // invalid until a time is known; a time without a date keeps the last date
    double lat = kUnknown; // degrees, negative south
    double lon = kUnknown; // degrees, negative west
    double heightEllipsoid = kUnknown; // m
    double heightMsl = kUnknown;       // m
    FixQuality quality = FixQuality::NoFix;
    int satellitesUsed = -1;
    double hdop = kUnknown, vdop = kUnknown, pdop = kUnknown;
    double speed = kUnknown;   // m/s over ground
    double course = kUnknown;  // degrees from true north
    double heading = kUnknown; // degrees from true north, when a heading source exists
    double correctionAge = kUnknown; // s
    double sdLat = kUnknown, sdLon = kUnknown, sdHeight = kUnknown; // m (1 sigma)

    bool hasPosition() const { return isKnown(lat) && isKnown(lon); }
};

struct PositionStatistics
{
    int samples = 0;
    double meanLat = kUnknown, meanLon = kUnknown, meanHeight = kUnknown;
    double sdEast = kUnknown, sdNorth = kUnknown, sdUp = kUnknown; // m
    double cep50 = kUnknown, cep95 = kUnknown, drms2 = kUnknown;  // m, horizontal
};

struct StatisticsSet
{
    PositionStatistics all;
    QMap<FixQuality, PositionStatistics> byQuality;
};

// One position of the statistics window in metres from the reference point.
struct EnuSample
{
    qint64 timeMs = 0; // receiver time, ms since the epoch
    double east = 0, north = 0, up = 0;
    FixQuality quality = FixQuality::NoFix;
};

// One second of the receiver for the time series.
struct HistorySample
{
    qint64 timeMs = 0;
    int satellitesUsed = -1;
    int satellitesInView = 0;
    double hdop = kUnknown, pdop = kUnknown;
    FixQuality quality = FixQuality::NoFix;
    double meanCn0 = kUnknown;
    double correctionAge = kUnknown;
};

struct SkyPoint
{
    qint64 timeMs = 0;
    double elevation = 0, azimuth = 0;
};

struct SatelliteTrail
{
    GnssSystem system = GnssSystem::Unknown;
    int prn = 0;
    QVector<SkyPoint> points; // oldest first
};

// Everything a view draws, taken at one moment.
struct ReceiverSnapshot
{
    qint64 timeMs = 0; // the state's clock (receiver time when known)
    FixInfo fix;
    QVector<SatelliteInfo> satellites; // by system, then number
    QVector<SatelliteTrail> trails;
    // The reference the deviations are measured from: the window's mean, or the
    // point the user set.
    double referenceLat = kUnknown, referenceLon = kUnknown, referenceHeight = kUnknown;
    QVector<EnuSample> deviations; // the statistics window, oldest first
    StatisticsSet window;
    StatisticsSet sinceReset;
    QVector<HistorySample> history; // oldest first
};
