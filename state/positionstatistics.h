// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receivertypes.h"

#include <array>
#include <deque>
#include <optional>
#include <vector>

// One fix epoch's position.
struct PositionSample
{
    qint64 timeMs = 0;
    double lat = kUnknown, lon = kUnknown;
    double height = kUnknown; // ellipsoidal when known, else above sea level
    FixQuality quality = FixQuality::NoFix;
};

struct ReferencePoint
{
    double lat, lon, height;
};

// The positions behind the statistics: a window of receiver time, kept whole, and
// everything since the last restart, kept bounded. Samples are stored Earth-centred,
// so the statistics of any reference point need one rotation per sample and no
// geodetic conversion.
//
// Since a restart at most kMaxKept samples are kept: when full, every second one is
// dropped and from then on only every second new one is kept (then every fourth, ...),
// so the kept ones stay evenly spread over the whole time. The counts stay true; the
// other figures come from the kept samples.
class PositionSamples
{
public:
    static constexpr int kMaxKept = 100000;

    // A sample of the same receiver time as the last one replaces it: one sample per
    // epoch, however many sources report the epoch.
    void add(const PositionSample &sample);
    void setWindowMs(qint64 windowMs);
    void restartSinceReset();
    void shiftTimes(qint64 deltaMs);

    struct Results
    {
        ReferencePoint reference{kUnknown, kUnknown, kUnknown};
        QVector<EnuSample> deviations;
        StatisticsSet window, sinceReset;
    };
    // From the given reference, else from the window's mean.
    Results compute(const std::optional<ReferencePoint> &reference) const;

    // A sample as kept.
    struct Stored
    {
        qint64 timeMs;
        double x, y, z; // m, Earth-centred Earth-fixed
        bool hasHeight;
        FixQuality quality;
    };
    using QualityCounts = std::array<qint64, 16>;

private:
    void trimWindow();
    void thinSinceReset();

    std::deque<Stored> m_window;
    qint64 m_windowMs = 600000;
    std::vector<Stored> m_kept;
    qint64 m_sinceResetTotal = 0;
    QualityCounts m_sinceResetCounts{};
    qint64 m_keepEvery = 1;
    bool m_lastCounted = false; // the window's last sample is counted since the reset
    bool m_lastKept = false;    // ... and is m_kept's last
};
