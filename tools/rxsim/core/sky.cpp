// SPDX-License-Identifier: BSD-3-Clause
#include "sky.h"

namespace rxsim {

namespace {

constexpr double kEarthMu = 3.986004418e14;
constexpr double kGeoRadius = 42164.17e3;

double circularMotion(double radius)
{
    return std::sqrt(kEarthMu / (radius * radius * radius));
}

SignalPlan plan(quint8 signal, double frequencyMHz, double cn0Offset, char nmeaId, bool l2c = false,
                double stepMHz = 0.0)
{
    SignalPlan p;
    p.trackingSignal = signal;
    p.l2cFlag = l2c;
    p.frequencyHz = frequencyMHz * 1e6;
    p.channelStepHz = stepMHz * 1e6;
    p.cn0Offset = cn0Offset;
    p.nmeaSignalId = nmeaId;
    return p;
}

QVector<SignalPlan> signalsFor(GnssSystem system, int prn)
{
    switch (system) {
    case GnssSystem::Gps: {
        QVector<SignalPlan> s{plan(0, 1575.42, 0.0, '1')};
        if (prn % 4 != 0)
            s << plan(9, 1227.60, -4.0, '6', true);
        if (prn % 3 == 0)
            s << plan(14, 1176.45, 1.5, '8');
        return s;
    }
    case GnssSystem::Glonass:
        return {plan(0, 1602.0, 0.0, '1', false, 0.5625), plan(5, 1246.0, -3.0, '3', false, 0.4375)};
    case GnssSystem::Galileo:
        return {plan(2, 1575.42, 0.0, '7'), plan(12, 1176.45, 1.0, '1'), plan(17, 1207.14, 0.5, '2')};
    case GnssSystem::Bds:
        if (prn < 19)
            return {plan(0, 1561.098, 0.0, '1'), plan(17, 1207.14, -1.0, 'B'), plan(21, 1268.52, -0.5, '8')};
        return {plan(0, 1561.098, 0.0, '1'), plan(21, 1268.52, -0.5, '8'), plan(8, 1575.42, 0.5, '3'),
                plan(12, 1176.45, 1.0, '5')};
    case GnssSystem::Qzss:
        return {plan(0, 1575.42, 0.0, '1'), plan(17, 1227.60, -3.0, '6'), plan(14, 1176.45, 1.5, '8')};
    case GnssSystem::Sbas:
        if (prn % 2 == 0)
            return {plan(0, 1575.42, -2.0, '1'), plan(6, 1176.45, -1.0, '7')};
        return {plan(0, 1575.42, -2.0, '1')};
    }
    return {};
}

Satellite orbiting(GnssSystem system, int prn, double radius, double inclinationDeg, double nodeDeg,
                   double argumentDeg, double meanMotion)
{
    Satellite s;
    s.system = system;
    s.prn = prn;
    s.radius = radius;
    s.inclination = inclinationDeg * kDegree;
    s.node0 = nodeDeg * kDegree;
    s.argumentOfLatitude0 = argumentDeg * kDegree;
    s.meanMotion = meanMotion;
    s.signalPlans = signalsFor(system, prn);
    return s;
}

Satellite geostationary(GnssSystem system, int prn, double longitudeDeg)
{
    return orbiting(system, prn, kGeoRadius, 0.0, longitudeDeg, 0.0, kEarthRotationRate);
}

// Inclined geosynchronous satellites sharing one ground track whose node is at
// nodeLongitude; they follow each other at equal spacing.
Satellite inclinedGeosynchronous(GnssSystem system, int prn, double inclinationDeg, double nodeLongitude,
                                 double argumentDeg)
{
    return orbiting(system, prn, kGeoRadius, inclinationDeg, nodeLongitude - argumentDeg, argumentDeg,
                    kEarthRotationRate);
}

} // namespace

Vec3 Satellite::positionAt(double t) const
{
    const double u = argumentOfLatitude0 + meanMotion * t;
    const double node = node0 - kEarthRotationRate * t;
    const double cu = std::cos(u), su = std::sin(u);
    const double cn = std::cos(node), sn = std::sin(node);
    const double ci = std::cos(inclination), si = std::sin(inclination);
    return {radius * (cu * cn - su * ci * sn), radius * (cu * sn + su * ci * cn), radius * su * si};
}

Vec3 Satellite::velocityAt(double t) const
{
    return (positionAt(t + 0.5) - positionAt(t - 0.5));
}

Sky::Sky()
{
    const double gpsRadius = 26559.7e3;
    for (int plane = 0; plane < 6; ++plane) {
        for (int k = 0; k < 5; ++k)
            m_satellites << orbiting(GnssSystem::Gps, plane * 5 + k + 1, gpsRadius, 55.0, plane * 60.0,
                                     k * 72.0 + plane * 12.0, circularMotion(gpsRadius));
    }

    // Satellites half an orbit apart share a frequency channel.
    static const int kChannels[8] = {1, -4, 5, 6, -2, -7, 0, -1};
    const double gloRadius = 25508.2e3;
    for (int plane = 0; plane < 3; ++plane) {
        for (int k = 0; k < 8; ++k) {
            Satellite s = orbiting(GnssSystem::Glonass, plane * 8 + k + 1, gloRadius, 64.8, plane * 120.0,
                                   k * 45.0 + plane * 15.0, circularMotion(gloRadius));
            s.glonassChannel = kChannels[(k % 4) + 4 * (plane % 2)];
            m_satellites << s;
        }
    }

    static const int kGalileo[24] = {1, 2, 3, 4, 5, 7, 8, 9, 10, 11, 12, 13, 15, 19, 21, 24, 25, 26, 27, 29, 30, 31, 33, 34};
    const double galRadius = 29599.8e3;
    for (int i = 0; i < 24; ++i)
        m_satellites << orbiting(GnssSystem::Galileo, kGalileo[i], galRadius, 56.0, (i / 8) * 120.0 + 20.0,
                                 (i % 8) * 45.0 + (i / 8) * 15.0, circularMotion(galRadius));

    static const int kBdsMeo[24] = {11, 12, 14, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 32, 33, 34, 35, 36, 37, 41, 42, 43};
    const double bdsRadius = 27906.1e3;
    for (int i = 0; i < 24; ++i)
        m_satellites << orbiting(GnssSystem::Bds, kBdsMeo[i], bdsRadius, 55.0, (i / 8) * 120.0 + 40.0,
                                 (i % 8) * 45.0 + (i / 8) * 15.0, circularMotion(bdsRadius));
    for (int i = 0; i < 3; ++i)
        m_satellites << inclinedGeosynchronous(GnssSystem::Bds, 38 + i, 55.0, 118.0, i * 120.0);
    static const double kBdsGeo[5] = {140.0, 80.0, 110.5, 160.0, 58.75};
    for (int i = 0; i < 5; ++i)
        m_satellites << geostationary(GnssSystem::Bds, i + 1, kBdsGeo[i]);

    for (int i = 0; i < 3; ++i)
        m_satellites << inclinedGeosynchronous(GnssSystem::Qzss, 193 + i, 41.0, 139.0, i * 120.0);
    m_satellites << geostationary(GnssSystem::Qzss, 196, 127.0);

    static const struct { int prn; double longitude; } kSbas[] = {
        {123, 31.5}, {136, 5.0}, {127, 55.0}, {128, 83.0}, {132, 93.5}, {130, 80.0},
        {129, 140.0}, {137, 127.0}, {131, -117.0}, {133, -129.0}, {135, -125.0}, {138, -107.3}};
    for (const auto &geo : kSbas)
        m_satellites << geostationary(GnssSystem::Sbas, geo.prn, geo.longitude);
}

double Sky::skyTime(qint64 gpsMilliseconds)
{
    // Counted from 2020 so that doubles keep sub-millimetre resolution of the orbits.
    constexpr qint64 kSkyEpochMs = qint64(2086) * 7 * 86400 * 1000;
    return double(gpsMilliseconds - kSkyEpochMs) / 1000.0;
}

const char *systemName(GnssSystem system)
{
    switch (system) {
    case GnssSystem::Gps: return "GPS";
    case GnssSystem::Glonass: return "GLONASS";
    case GnssSystem::Sbas: return "SBAS";
    case GnssSystem::Galileo: return "GALILEO";
    case GnssSystem::Bds: return "BDS";
    case GnssSystem::Qzss: return "QZSS";
    }
    return "";
}

int receiverPrn(const Satellite &s)
{
    switch (s.system) {
    case GnssSystem::Gps: return s.prn;
    case GnssSystem::Qzss: return s.prn - 160;
    case GnssSystem::Glonass: return s.prn + 37;
    case GnssSystem::Galileo: return s.prn + 74;
    case GnssSystem::Sbas: return s.prn;
    case GnssSystem::Bds: return s.prn + 160;
    }
    return 0;
}

} // namespace rxsim
