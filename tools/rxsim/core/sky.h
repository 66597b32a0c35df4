// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "rxsimmath.h"

#include <QVector>

namespace rxsim {

// Numbered as in the system field (bits 16 to 18) of the receiver's tracking status.
enum class GnssSystem : quint8 { Gps = 0, Glonass = 1, Sbas = 2, Galileo = 3, Bds = 4, Qzss = 5 };
constexpr int kSystemCount = 6;

// One signal a satellite transmits and the receiver tracks.
struct SignalPlan
{
    quint8 trackingSignal = 0; // bits 21 to 25 of the tracking status
    bool l2cFlag = false;      // bit 26: tells L2C from L2P(Y) where signal 9 is ambiguous
    double frequencyHz = 0.0;  // GLONASS: at channel 0
    double channelStepHz = 0.0;
    double cn0Offset = 0.0;    // against the first signal, dB
    char nmeaSignalId = 0;     // hexadecimal signal id of the satellites-in-view sentence
};

// A satellite on a circular orbit. Earth-fixed position at time t:
//   u = argumentOfLatitude0 + meanMotion * t, node = node0 - earth rotation * t.
// Geostationary satellites have meanMotion equal to the Earth's rotation and zero
// inclination; inclined geosynchronous ones trace their figure of eight.
struct Satellite
{
    GnssSystem system = GnssSystem::Gps;
    int prn = 0;            // the system's own number (GLONASS: slot)
    int glonassChannel = 0; // frequency channel -7..6
    double radius = 0.0;
    double inclination = 0.0;
    double node0 = 0.0;
    double argumentOfLatitude0 = 0.0;
    double meanMotion = 0.0;
    QVector<SignalPlan> signalPlans; // the first is the primary signal

    Vec3 positionAt(double t) const;
    Vec3 velocityAt(double t) const;
    double frequencyOf(const SignalPlan &plan) const { return plan.frequencyHz + glonassChannel * plan.channelStepHz; }
};

// The six constellations the receiver tracks, fixed for every run: the same instant
// always shows the same sky, so the start time chooses the sky.
class Sky
{
public:
    Sky();
    const QVector<Satellite> &satellites() const { return m_satellites; }

    // Seconds on the sky's own clock for a GPS time.
    static double skyTime(qint64 gpsMilliseconds);

private:
    QVector<Satellite> m_satellites;
};

const char *systemName(GnssSystem system); // "GPS", "GLONASS", "SBAS", "GALILEO", "BDS", "QZSS"

// The receiver's one-number satellite id of its lists and DOP log: GPS 1-32,
// QZSS 33-37, GLONASS 38-61, Galileo 75-110, SBAS 120-141, BDS 161-223.
int receiverPrn(const Satellite &satellite);

} // namespace rxsim
