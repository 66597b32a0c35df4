// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "sky.h"

#include <QDateTime>
#include <QHash>
#include <QVector>

namespace rxsim {

// Where and how the simulated vehicle drives: a circle around a centre point,
// gently rising and falling, or standing still (the timing receiver's antenna).
struct PlatformSettings
{
    double latitude = 30.52850;   // degrees, centre of the loop
    double longitude = 114.35780; // degrees
    double height = 24.0;         // metres above mean sea level
    double loopRadius = 150.0;    // metres
    double speed = 8.0;           // metres per second; 0 parks the vehicle
};

struct TrackedSignal
{
    const SignalPlan *plan = nullptr;
    double frequency = 0.0;    // Hz
    double cn0 = 0.0;          // dB-Hz
    double pseudorange = 0.0;  // m
    double carrierPhase = 0.0; // cycles, as the receiver accumulates it (negative range rate sense)
    double doppler = 0.0;      // Hz
    double lockTime = 0.0;     // s
    double pseudorangeStd = 0.0;
    double phaseStd = 0.0;
    quint32 trackingStatus = 0;
};

struct TrackedSatellite
{
    const Satellite *satellite = nullptr;
    Vec3 position;        // Earth-fixed, m
    double elevation = 0.0; // degrees
    double azimuth = 0.0;   // degrees
    double range = 0.0;
    double rangeRate = 0.0;
    double clockCorrection = 0.0; // s
    double ionoDelay = 0.0;       // m on the first signal's frequency
    double tropoDelay = 0.0;      // m
    bool used = false;            // in the position solution
    QVector<TrackedSignal> measurements; // one per tracked signal, the first signal first
};

// One position solution of the receiver.
struct PositionFix
{
    const char *status = "SOL_COMPUTED";
    const char *type = "SINGLE";
    double latitude = 0.0;  // degrees
    double longitude = 0.0; // degrees
    double height = 0.0;    // metres above mean sea level
    double latitudeStd = 0.0;
    double longitudeStd = 0.0;
    double heightStd = 0.0;
    int ggaQuality = 1; // 1 single, 2 differential, 4 RTK fixed, 5 RTK float
    char rmcMode = 'A';
    Vec3 ecef;
};

struct Dops
{
    double gdop = 99.9, pdop = 99.9, hdop = 99.9, vdop = 99.9, tdop = 99.9, htdop = 99.9;
};

// Everything the receiver knows at one instant; every message of that instant is
// formatted from this one state, so all of them agree.
struct Epoch
{
    qint64 elapsedMs = 0;
    qint64 gpsMs = 0; // since the GPS epoch
    int gpsWeek = 0;
    double gpsSecondsOfWeek = 0.0;
    QDateTime utc;
    int leapSeconds = 18;

    double latitude = 0.0;   // the antenna's true place, degrees
    double longitude = 0.0;
    double height = 0.0;     // m above mean sea level
    double undulation = 0.0; // geoid above the ellipsoid, m
    PositionFix best;        // RTK when corrections flow, else single
    PositionFix pseudorange; // code-only
    PositionFix timeDifferenced;
    PositionFix matched;
    bool rtkFixed = false;
    double differentialAge = 0.0;
    Vec3 velocityEnu;
    double horizontalSpeed = 0.0;
    double track = 0.0;        // degrees from true north
    double verticalSpeed = 0.0;
    double heading = 0.0;      // dual-antenna heading, degrees
    double pitch = 0.0;        // degrees
    double roll = 0.0;         // degrees
    double baselineLength = 1.2;
    Vec3 specificForce;        // body frame (forward, left, up), m/s^2
    Vec3 angularRate;          // body frame, rad/s

    double baseLatitude = 0.0, baseLongitude = 0.0, baseHeight = 0.0;
    Vec3 baselineEnu;          // rover minus base station
    double secondaryLatitude = 0.0, secondaryLongitude = 0.0, secondaryHeight = 0.0;

    double clockBias = 0.0;  // m
    double clockDrift = 0.0; // m/s
    QVector<TrackedSatellite> satellites; // above the elevation mask, sky order
    int usedCount = 0;
    Dops dops;

    int trackedCount(GnssSystem system) const;
    int usedCountOf(GnssSystem system) const;
};

// Where the receiver's RTK corrections come from.
enum class RtkCorrections
{
    None,      // a receiver without RTK (the timing receiver)
    Simulated, // always there but for a float spell every four minutes
    FromLink,  // fixed only while setCorrectionsArriving(true)
};

// The receiver: the vehicle, its antennas and what it tracks of the sky. Asked for
// instants in increasing order (lock times run from the instant a signal is first
// seen).
class Receiver
{
public:
    static constexpr double kElevationMask = 5.0;

    Receiver(const PlatformSettings &platform, RtkCorrections rtk, quint64 seed, const QDateTime &startUtc);
    Receiver(const PlatformSettings &platform, bool rtk, quint64 seed, const QDateTime &startUtc)
        : Receiver(platform, rtk ? RtkCorrections::Simulated : RtkCorrections::None, seed, startUtc)
    {
    }
    Epoch at(qint64 elapsedMs);
    // With RtkCorrections::FromLink: whether corrections reach the receiver now.
    void setCorrectionsArriving(bool arriving) { m_correctionsArriving = arriving; }

private:
    void platformState(double t, Epoch &e, double &lat, double &lon, double &hMsl) const;
    void track(double t, const Vec3 &antenna, double lat, double lon, Epoch &e);
    PositionFix fix(const Epoch &e, double lat, double lon, double h, double horizontalNoise,
                    double verticalNoise, quint64 key, double t) const;

    PlatformSettings m_platform;
    RtkCorrections m_rtk;
    bool m_correctionsArriving = false;
    quint64 m_seed;
    qint64 m_startGpsMs;
    Sky m_sky;
    QHash<quint32, double> m_lockStart; // per satellite signal: elapsed seconds of first lock
    bool m_firstEpoch = true;
};

// Milliseconds since the GPS epoch at a UTC time, with the receiver's 18 leap seconds.
qint64 gpsMillisecondsAt(const QDateTime &utc);

// A smooth stand-in for the geoid: undulation in metres at a place.
double geoidUndulation(double latitudeDeg, double longitudeDeg);

} // namespace rxsim
