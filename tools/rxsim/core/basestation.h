// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receiver.h"
#include "sky.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>

namespace rxsim {

// A reference station standing still at the platform's centre under the receiver's
// sky, sending what an RTK rover needs: its position (1005) and MSM4 observations of
// GPS, GLONASS, Galileo and BDS. Pseudoranges are the geometric range plus the
// station's clock; phase ranges add a whole number of wavelengths to it.
class BaseStation
{
public:
    static constexpr int kStationId = 1;

    BaseStation(const PlatformSettings &place, quint64 seed, const QDateTime &startUtc);

    // The antenna reference point, WGS84 Earth-fixed.
    const Vec3 &position() const { return m_position; }
    // The frames of one instant: 1005, then one MSM4 per system. Asked for instants in
    // increasing order (lock times run from the instant a signal is first seen).
    QByteArray framesAt(qint64 elapsedMs);
    // The station's clock term in every range at that instant, m.
    static double clockBias(qint64 elapsedMs);

private:
    quint64 m_seed;
    qint64 m_startGpsMs;
    double m_latitude;
    double m_longitude;
    Vec3 m_position;
    Sky m_sky;
    QHash<quint32, double> m_lockStart; // per satellite signal: elapsed seconds of first lock
    bool m_firstEpoch = true;
};

} // namespace rxsim
