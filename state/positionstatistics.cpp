// SPDX-License-Identifier: BSD-3-Clause
#include "positionstatistics.h"

#include <GeographicLib/Geocentric.hpp>

#include <algorithm>
#include <limits>

namespace {

using Stored = PositionSamples::Stored;
using GeographicLib::Geocentric;

struct EnuPoint
{
    double east, north, up; // up unknown when the sample had no height
    const Stored *stored;
};

// Mean of Earth-centred positions, back on the ellipsoid: unlike averaged degrees it
// holds across the antimeridian and near the poles.
struct Centroid
{
    double x = 0, y = 0, z = 0;
    qint64 count = 0;
    bool allHeights = true;

    void add(const Stored &s)
    {
        x += s.x;
        y += s.y;
        z += s.z;
        ++count;
        allHeights = allHeights && s.hasHeight;
    }
    ReferencePoint point() const
    {
        ReferencePoint p{};
        Geocentric::WGS84().Reverse(x / count, y / count, z / count, p.lat, p.lon, p.height);
        return p;
    }
};

// East-north-up axes at a reference point. GeographicLib gives the rotation from local
// to Earth-centred axes; its transpose takes the stored samples back, which is what
// LocalCartesian does for each point, here without a geodetic conversion per sample.
class LocalFrame
{
public:
    explicit LocalFrame(const ReferencePoint &reference)
    {
        Geocentric::WGS84().Forward(reference.lat, reference.lon, isKnown(reference.height) ? reference.height : 0.0,
            m_x0, m_y0, m_z0, m_rotation);
    }

    template <typename Samples>
    std::vector<EnuPoint> points(const Samples &samples) const
    {
        std::vector<EnuPoint> out;
        out.reserve(samples.size());
        const double *m = m_rotation.data();
        for (const Stored &s : samples) {
            const double dx = s.x - m_x0, dy = s.y - m_y0, dz = s.z - m_z0;
            const double up = m[2] * dx + m[5] * dy + m[8] * dz;
            out.push_back({m[0] * dx + m[3] * dy + m[6] * dz, m[1] * dx + m[4] * dy + m[7] * dz,
                s.hasHeight ? up : kUnknown, &s});
        }
        return out;
    }

private:
    double m_x0 = 0, m_y0 = 0, m_z0 = 0;
    std::vector<double> m_rotation = std::vector<double>(9);
};

// The smallest distance within which at least `percent` of the distances lie.
double nearestRank(std::vector<double> &distances, int percent)
{
    const size_t rank = (size_t(percent) * distances.size() + 99) / 100;
    const auto at = distances.begin() + std::ptrdiff_t(std::max<size_t>(rank, 1) - 1);
    std::nth_element(distances.begin(), at, distances.end());
    return *at;
}

PositionStatistics summarize(const std::vector<EnuPoint> &points, qint64 total)
{
    PositionStatistics s;
    s.samples = int(std::min<qint64>(total, std::numeric_limits<int>::max()));
    if (points.empty())
        return s;
    Centroid centroid;
    double east = 0, north = 0, up = 0;
    for (const EnuPoint &p : points) {
        centroid.add(*p.stored);
        east += p.east;
        north += p.north;
        up += p.up;
    }
    const ReferencePoint mean = centroid.point();
    s.meanLat = mean.lat;
    s.meanLon = mean.lon;
    s.meanHeight = centroid.allHeights ? mean.height : kUnknown;

    const double n = double(points.size());
    std::vector<double> distances;
    distances.reserve(points.size());
    double sumEast = 0, sumNorth = 0, sumUp = 0;
    for (const EnuPoint &p : points) {
        sumEast += (p.east - east / n) * (p.east - east / n);
        sumNorth += (p.north - north / n) * (p.north - north / n);
        sumUp += (p.up - up / n) * (p.up - up / n);
        distances.push_back(std::hypot(p.east, p.north));
    }
    if (points.size() > 1) {
        s.sdEast = std::sqrt(sumEast / (n - 1));
        s.sdNorth = std::sqrt(sumNorth / (n - 1));
        s.sdUp = std::sqrt(sumUp / (n - 1)); // NaN, so unknown, when a sample had no height
        s.drms2 = 2.0 * std::hypot(s.sdEast, s.sdNorth);
    }
    s.cep50 = nearestRank(distances, 50);
    s.cep95 = nearestRank(distances, 95);
    return s;
}

StatisticsSet statisticsOf(
    const std::vector<EnuPoint> &points, qint64 total, const PositionSamples::QualityCounts &counts)
{
    StatisticsSet set;
    set.all = summarize(points, total);
    for (FixQuality quality : allFixQualities()) {
        if (counts.at(size_t(quality)) == 0)
            continue;
        std::vector<EnuPoint> ofQuality;
        std::copy_if(points.cbegin(), points.cend(), std::back_inserter(ofQuality),
            [quality](const EnuPoint &p) { return p.stored->quality == quality; });
        set.byQuality.insert(quality, summarize(ofQuality, counts.at(size_t(quality))));
    }
    return set;
}

} // namespace

void PositionSamples::add(const PositionSample &sample)
{
    Stored s{sample.timeMs, 0, 0, 0, isKnown(sample.height), sample.quality};
    Geocentric::WGS84().Forward(sample.lat, sample.lon, s.hasHeight ? sample.height : 0.0, s.x, s.y, s.z);

    if (!m_window.empty() && m_window.back().timeMs == s.timeMs) {
        if (m_lastCounted) {
            --m_sinceResetCounts.at(size_t(m_window.back().quality));
            ++m_sinceResetCounts.at(size_t(s.quality));
        }
        if (m_lastKept)
            m_kept.back() = s;
        m_window.back() = s;
        return;
    }

    m_window.push_back(s);
    trimWindow();
    m_lastCounted = true;
    m_lastKept = m_sinceResetTotal % m_keepEvery == 0;
    ++m_sinceResetTotal;
    ++m_sinceResetCounts.at(size_t(s.quality));
    if (m_lastKept) {
        m_kept.push_back(s);
        if (m_kept.size() >= size_t(kMaxKept))
            thinSinceReset();
    }
}

void PositionSamples::thinSinceReset()
{
    // Kept samples are those whose count since the reset is a multiple of
    // m_keepEvery; doubling it keeps every second one. kMaxKept is even, so the newest
    // sample goes.
    size_t to = 0;
    for (size_t from = 0; from < m_kept.size(); from += 2)
        m_kept[to++] = m_kept[from];
    m_kept.resize(to);
    m_keepEvery *= 2;
    m_lastKept = false;
}

void PositionSamples::trimWindow()
{
    // Receiver time that jumps back leaves older samples at the front; the count
    // limit bounds them.
    while (!m_window.empty()
        && (m_window.front().timeMs < m_window.back().timeMs - m_windowMs || m_window.size() > size_t(kMaxKept)))
        m_window.pop_front();
}

void PositionSamples::setWindowMs(qint64 windowMs)
{
    m_windowMs = windowMs;
    trimWindow();
}

void PositionSamples::restartSinceReset()
{
    m_kept.clear();
    m_sinceResetTotal = 0;
    m_sinceResetCounts.fill(0);
    m_keepEvery = 1;
    m_lastCounted = false;
    m_lastKept = false;
}

void PositionSamples::shiftTimes(qint64 deltaMs)
{
    for (Stored &s : m_window)
        s.timeMs += deltaMs;
    for (Stored &s : m_kept)
        s.timeMs += deltaMs;
}

PositionSamples::Results PositionSamples::compute(const std::optional<ReferencePoint> &reference) const
{
    Results results;
    Centroid windowCentroid;
    QualityCounts windowCounts{};
    for (const Stored &s : m_window) {
        windowCentroid.add(s);
        ++windowCounts.at(size_t(s.quality));
    }
    std::vector<EnuPoint> windowPoints, keptPoints;
    if (reference || windowCentroid.count > 0) {
        results.reference = reference ? *reference : windowCentroid.point();
        if (!reference && !windowCentroid.allHeights)
            results.reference.height = kUnknown;
        const LocalFrame frame(results.reference);
        windowPoints = frame.points(m_window);
        keptPoints = frame.points(m_kept);
        results.deviations.reserve(int(windowPoints.size()));
        for (const EnuPoint &p : windowPoints)
            results.deviations.append({p.stored->timeMs, p.east, p.north, p.up, p.stored->quality});
    }
    results.window = statisticsOf(windowPoints, qint64(m_window.size()), windowCounts);
    results.sinceReset = statisticsOf(keptPoints, m_sinceResetTotal, m_sinceResetCounts);
    return results;
}
