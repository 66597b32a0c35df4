// SPDX-License-Identifier: BSD-3-Clause
#include "basestation.h"

#include "rtcm3encoder.h"

#include <iterator>

namespace rxsim {

namespace {

constexpr int kLeapSeconds = 18;

// The systems a base station sends, in sending order.
const struct { GnssSystem system; Rtcm3System rtcm; } kSentSystems[] = {
    {GnssSystem::Gps, Rtcm3System::GPS},
    {GnssSystem::Glonass, Rtcm3System::GLONASS},
    {GnssSystem::Galileo, Rtcm3System::Galileo},
    {GnssSystem::Bds, Rtcm3System::BDS},
};

// The MSM signal number of each tracked signal of the sky.
const struct { GnssSystem system; quint8 trackingSignal; int msmSignal; } kMsmSignals[] = {
    {GnssSystem::Gps, 0, 2},       // L1 C/A: 1C
    {GnssSystem::Gps, 9, 16},      // L2C (L): 2L
    {GnssSystem::Gps, 14, 23},     // L5 (Q): 5Q
    {GnssSystem::Glonass, 0, 2},   // G1 C/A: 1C
    {GnssSystem::Glonass, 5, 8},   // G2 C/A: 2C
    {GnssSystem::Galileo, 2, 2},   // E1 (C): 1C
    {GnssSystem::Galileo, 12, 23}, // E5a (Q): 5Q
    {GnssSystem::Galileo, 17, 15}, // E5b (Q): 7Q
    {GnssSystem::Bds, 0, 2},       // B1I: 2I
    {GnssSystem::Bds, 21, 8},      // B3I: 6I
    {GnssSystem::Bds, 17, 14},     // B2I: 7I
    {GnssSystem::Bds, 12, 22},     // B2a (data): 5D
    {GnssSystem::Bds, 8, 30},      // B1C (data): 1D
};

int msmSignalOf(GnssSystem system, quint8 trackingSignal)
{
    for (const auto &s : kMsmSignals) {
        if (s.system == system && s.trackingSignal == trackingSignal)
            return s.msmSignal;
    }
    return 0;
}

} // namespace

BaseStation::BaseStation(const PlatformSettings &place, quint64 seed, const QDateTime &startUtc)
    : m_seed(seed)
    , m_startGpsMs(gpsMillisecondsAt(startUtc))
    , m_latitude(place.latitude)
    , m_longitude(place.longitude)
    , m_position(geodeticToEcef(place.latitude, place.longitude,
                                place.height + geoidUndulation(place.latitude, place.longitude)))
{
}

double BaseStation::clockBias(qint64 elapsedMs)
{
    // A free-running oscillator a third of a microsecond off, drifting slowly.
    return 95.0 + 0.03 * (elapsedMs / 1000.0);
}

QByteArray BaseStation::framesAt(qint64 elapsedMs)
{
    const qint64 gpsMs = m_startGpsMs + elapsedMs;
    const double t = elapsedMs / 1000.0;
    const double skyT = Sky::skyTime(gpsMs);
    const double clock = clockBias(elapsedMs);

    Rtcm3StationPosition station;
    station.stationId = kStationId;
    station.ecefX = m_position.x;
    station.ecefY = m_position.y;
    station.ecefZ = m_position.z;
    QByteArray out = Rtcm3Encoder::stationPosition(station);

    QHash<quint32, double> stillLocked;
    const int systemCount = int(std::size(kSentSystems));
    for (int i = 0; i < systemCount; ++i) {
        Rtcm3MsmEpoch epoch;
        epoch.system = kSentSystems[i].rtcm;
        epoch.stationId = kStationId;
        epoch.gpsMilliseconds = gpsMs;
        epoch.leapSeconds = kLeapSeconds;
        epoch.moreMessagesFollow = i + 1 < systemCount;
        for (const Satellite &sat : m_sky.satellites()) {
            if (sat.system != kSentSystems[i].system)
                continue;
            const Vec3 los = sat.positionAt(skyT) - m_position;
            const double range = los.norm();
            const double sinElevation = ecefToEnu(los, m_latitude, m_longitude).z / range;
            if (std::asin(sinElevation) / kDegree < Receiver::kElevationMask)
                continue;

            Rtcm3SatelliteObservation satellite;
            satellite.satelliteId = sat.prn;
            const quint64 satKey = (quint64(sat.system) << 16) | quint64(sat.prn);
            for (int k = 0; k < sat.signalPlans.size(); ++k) {
                const SignalPlan &plan = sat.signalPlans.at(k);
                const int msmSignal = msmSignalOf(sat.system, plan.trackingSignal);
                if (msmSignal == 0)
                    continue;
                const quint32 lockKey = quint32(satKey << 4) | quint32(k);
                const double lockStart = m_firstEpoch ? -(200.0 + 3000.0 * hashUniform(m_seed, lockKey, 70))
                                                      : m_lockStart.value(lockKey, t);
                stillLocked.insert(lockKey, lockStart);
                // A new lock, a new ambiguity; a few hundred cycles keep the phase
                // range within reach of the rough range.
                const double ambiguity =
                    std::floor(hashUniform(m_seed, lockKey, quint64(qint64(lockStart * 10.0)), 71) * 2000.0) - 1000.0;

                Rtcm3SignalObservation o;
                o.signalId = msmSignal;
                o.pseudorange = range + clock + SmoothNoise(hashMix(m_seed, lockKey, 72), 0.3, 2.0, 9.0).at(t);
                o.phaseRange = range + clock + ambiguity * kLightSpeed / sat.frequencyOf(plan);
                o.lockTime = t - lockStart;
                o.cn0 = 31.0 + 17.0 * std::sqrt(sinElevation) + plan.cn0Offset;
                satellite.observations << o;
            }
            epoch.satellites << satellite;
        }
        for (const QByteArray &frame : Rtcm3Encoder::msm4(epoch))
            out += frame;
    }
    m_lockStart.swap(stillLocked);
    m_firstEpoch = false;
    return out;
}

} // namespace rxsim
