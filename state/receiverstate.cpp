// SPDX-License-Identifier: BSD-3-Clause
// How the receiver state is filled: every rule in one place.
//
// Lines. The bytes are cut as the message view cuts them (LineFramer, lines up to
// 256 KiB). A line is read only when it is one of the kinds below, recognised from
// its first bytes, and its checksum is valid; everything else is dropped before it is
// converted or split, and only read lines count in linesUsed().
//
// Sources.
//   Fix time and date   GGA (time; the last date), RMC, ZDA, and the header of every
//                       log read (GPS week and seconds, minus 18 leap seconds)
//   Position, quality   GGA, RMC, BESTPOS. Heights: GGA, BESTPOS (above sea level;
//                       the ellipsoidal height adds the geoid separation / undulation)
//   Count of used       GGA, BESTPOS (solution satellites)
//   HDOP                GGA, GSA, PSRDOP. PDOP: GSA, PSRDOP. VDOP: GSA, PSRDOP
//                       (from PDOP² = HDOP² + VDOP²)
//   Speed, course       RMC, VTG, BESTVEL (computed solutions only)
//   Heading             HDT, HEADING2 and HEADING (computed solutions only)
//   Correction age      GGA; BESTPOS when its solution uses corrections
//   Position sigmas     GST, BESTPOS
//   Satellites          GSV (elevation, azimuth, one signal's C/N0), SATVIS2
//                       (elevation, azimuth), RANGE (C/N0 of every signal)
//   Used satellites     GSA, PSRDOP
// The most recent line wins. A line sets every field it carries, so an empty field
// makes that value unknown (an empty GGA position after a fix is no position).
// BESTPOS without a computed solution is no fix and no position. RMC's mode letter
// sets the quality unless it already describes it ('D' is DGNSS or SBAS, 'P' PPS or
// PPP: GGA's finer word stays); an RMC without a mode letter only turns "no fix" into
// "single". GGA qualities 0-9 are FixQuality's values; a computed BESTPOS of a
// position type the state does not know is "single".
//
// Pace. RANGE, the longest log, is read when it comes, but at most ten times a second
// of the computer's time: one fed sooner is held back, unread, in place of the one
// held before. The next one due is read instead, or the state's next read-out reads
// the one held (as of that moment: its own time does not turn the clock back). A
// receiver sends RANGE once a second, so live every one is read; a recording replayed
// at full speed skips the ones nobody could have seen.
//
// Satellite numbers (satellitenumbers.cpp). Each satellite is kept under its system
// and the system's own number: GPS 1-32, GLONASS slot 1-32, Galileo 1-36, BDS 1-63,
// QZSS 1-10, SBAS PRN 120-158, NavIC 1-14.
//   GP, GN and GSA system id 1 share one NMEA plan: 1-32 GPS, 33-64 SBAS (PRN minus
//   87), 65-96 GLONASS (slot plus 64), 120-158 SBAS as the PRN itself (NMEA 4.x
//   writes 152-158 so), 193-202 QZSS (older receivers put QZSS under GP).
//   GL: 65-96 and slots 1-32. GA: 1-36, also 101-136 and 301-336. GB/BD: 1-63, also
//   201-263 and 401-463. GQ/QZ: 1-10 and 193-202. GI/IR: 1-14. A GSA's system id (1-6)
//   decides over its talker. Other talkers are not read, numbers outside the ranges
//   are dropped.
//   Logs: PSRDOP by the receiver's list numbers (GPS 1-32, QZSS 33-37, GLONASS 38-61,
//   Galileo 75-110, SBAS 120-158, BDS 161-223). RANGE takes the system from the
//   tracking status (bits 16-18) and reads the number by those ranges or the system's
//   own; SATVIS2 names the system and writes its own numbers (QZSS as 193-202).
//   So a satellite reported by GSV, SATVIS2 and RANGE is one satellite.
//
// Signals (signalnames.cpp). One table names each system's signals by NMEA 4.11
// signal id and by the tracking status's signal type (bits 21-25, bit 26 telling L2C
// from L2P(Y)); a signal reported both ways is one signal. A GSV without a signal id
// (before NMEA 4.10), or with id 0, reports the system's primary signal: L1 C/A for
// GPS, QZSS and SBAS, G1 C/A, E1, B1I, L5 SPS for NavIC. An empty C/N0 keeps the
// signal with its C/N0 unknown. Signals are listed in the table's order.
//
// Used satellites. A report replaces the used set of its system (talker or system id)
// and of every system whose satellites it lists; consecutive GSA lines are one report,
// so a system's second GSA adds to its first. PSRDOP replaces every system's set. A set
// not renewed for staleAfterMs is ignored. The sets are kept apart from the satellites,
// so a GSA that comes before a satellite's GSV counts as soon as the GSV arrives.
//
// Staleness. A satellite's position and each of its signals disappear staleAfterMs
// (10 s) after they were last refreshed by the state's clock, and the satellite with
// the last of them; so does receiver time jumping back by more than that.
//
// Clock. nowMs() is the receiver time of the last line that carried one. Before the
// first, the time since the state was made; a time of day before the first date
// counts from 1970-01-01 (passing midnight when the time of day falls by more than
// twelve hours), and the UTC of the fix stays unknown until a date is seen. When the
// clock moves to a finer source, everything stamped on the old one moves with it.
//
// Statistics (positionstatistics.cpp). One sample per fix epoch: each distinct
// receiver time with a position and a quality other than "no fix"; the last source of
// the epoch wins. The height is the ellipsoidal one, else the height above sea level;
// with a sample lacking both, heights are unknown for its set. Means are taken
// Earth-centred and put back on the ellipsoid. Standard deviations (n - 1) are about
// the set's own mean in east-north-up axes at the reference; CEP50 and CEP95 are the
// nearest-rank percentiles of the horizontal distance from the reference; 2DRMS is
// 2 sqrt(sdE² + sdN²). The reference is the user's point, else the window's mean.
// The window holds the samples of the last statisticsWindowSeconds of receiver time
// (at most 100,000); since a reset at most 100,000 are kept, evenly thinned (every
// second, then every fourth, ...), while the sample counts stay true.
//
// History and trails. At each new receiver second the second that ended is recorded
// (satellites used, in view, HDOP, PDOP, quality, the mean of the satellites' best
// C/N0, correction age); each satellite's sky point is added at most every 30 s.
// Both reach back historySeconds. Windows and history are at most a day long.
#include "receiverstate.h"

#include "receiverstatedata.h"
#include "signalnames.h"

#include <algorithm>
#include <iterator>

namespace {

// The message view's limit: both cut the same lines.
constexpr int kMaxLineBytes = 256 * 1024;
constexpr int kMaxSeconds = 86400;
constexpr qint64 kDayMs = 86400000LL;
constexpr qint64 kTrailSpacingMs = 30000;
constexpr qint64 kUnixEpochJulianDay = 2440588;

qint64 floorDiv(qint64 value, qint64 divisor)
{
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

// Within reach before now, and not ahead of it by more than the stale time.
bool reaches(qint64 stampMs, qint64 nowMs, qint64 reachMs)
{
    return nowMs - stampMs <= reachMs && stampMs - nowMs <= ReceiverState::staleAfterMs;
}

} // namespace

ReceiverStateData::ReceiverStateData(const StateSettings &settings)
    : m_settings(settings)
{
    m_sinceStart.start();
    m_positions.setWindowMs(settings.windowMs);
}

void ReceiverStateData::setWindowMs(qint64 windowMs)
{
    m_settings.windowMs = windowMs;
    m_positions.setWindowMs(windowMs);
}

void ReceiverStateData::setHistoryMs(qint64 historyMs)
{
    m_settings.historyMs = historyMs;
    prune(now());
}

void ReceiverStateData::setReference(const std::optional<ReferencePoint> &reference)
{
    m_settings.reference = reference;
}

qint64 ReceiverStateData::now() const
{
    return m_basis == ClockBasis::SinceStart ? m_startClockMs : m_receiverMs;
}

void ReceiverStateData::takeTimeOfDay(int timeOfDayMs)
{
    if (timeOfDayMs < 0)
        return;
    qint64 day = 0;
    if (m_basis != ClockBasis::SinceStart) {
        day = floorDiv(m_receiverMs, kDayMs);
        if (timeOfDayMs < m_receiverMs - day * kDayMs - kDayMs / 2)
            ++day;
    }
    setClock(day * kDayMs + timeOfDayMs, std::max(m_basis, ClockBasis::TimeOfDay));
}

void ReceiverStateData::takeDateTime(const QDate &date, int timeOfDayMs)
{
    if (!date.isValid() || timeOfDayMs < 0)
        takeTimeOfDay(timeOfDayMs);
    else
        setClock((date.toJulianDay() - kUnixEpochJulianDay) * kDayMs + timeOfDayMs, ClockBasis::Dated);
}

void ReceiverStateData::setClock(qint64 ms, ClockBasis basis)
{
    if (basis > m_basis) {
        shiftStamps(ms - now());
        m_basis = basis;
        m_second = floorDiv(ms, 1000);
    } else {
        closeSecond(ms);
    }
    m_receiverMs = ms;
    if (m_basis == ClockBasis::Dated)
        m_fix.utc = QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC);
}

void ReceiverStateData::closeSecond(qint64 newNowMs)
{
    const qint64 second = floorDiv(newNowMs, 1000);
    if (second == m_second)
        return;
    if (m_second != std::numeric_limits<qint64>::min())
        recordHistory(m_second * 1000);
    m_second = second;
    prune(newNowMs);
}

void ReceiverStateData::shiftStamps(qint64 deltaMs)
{
    for (auto &[key, entry] : m_satellites) {
        entry.positionSeenMs += deltaMs;
        for (SignalEntry &signal : entry.tracked)
            signal.seenMs += deltaMs;
    }
    for (UsedSatellites &used : m_used)
        used.reportedMs += deltaMs;
    for (auto &[key, trail] : m_trails) {
        for (SkyPoint &point : trail)
            point.timeMs += deltaMs;
    }
    for (HistorySample &sample : m_history)
        sample.timeMs += deltaMs;
    m_positions.shiftTimes(deltaMs);
}

bool ReceiverStateData::isFresh(qint64 stampMs, qint64 nowMs) const
{
    return reaches(stampMs, nowMs, ReceiverState::staleAfterMs);
}

ReceiverStateData::SatelliteEntry &ReceiverStateData::satellite(SatelliteId id)
{
    return m_satellites[satelliteKey(id)];
}

void ReceiverStateData::setSkyPosition(SatelliteId id, SatelliteEntry &entry, double elevation, double azimuth)
{
    const qint64 nowMs = now();
    const bool valid = std::abs(elevation) <= 90.0 && azimuth >= 0.0 && azimuth <= 360.0;
    entry.elevation = valid ? elevation : kUnknown;
    entry.azimuth = valid ? std::fmod(azimuth, 360.0) : kUnknown;
    entry.positionSeen = true;
    entry.positionSeenMs = nowMs;
    if (!valid)
        return;
    QVector<SkyPoint> &trail = m_trails[satelliteKey(id)];
    if (trail.isEmpty() || nowMs - trail.last().timeMs >= kTrailSpacingMs)
        trail.append({nowMs, entry.elevation, entry.azimuth});
}

void ReceiverStateData::setSignal(SatelliteEntry &entry, int signal, int nmeaSignalId, double cn0)
{
    const double level = cn0 >= 0.0 && cn0 <= 100.0 ? cn0 : kUnknown;
    for (SignalEntry &known : entry.tracked) {
        if (known.signal == signal) {
            known.cn0 = level;
            known.seenMs = now();
            if (nmeaSignalId >= 0)
                known.nmeaSignalId = nmeaSignalId;
            return;
        }
    }
    entry.tracked.append({signal, nmeaSignalId, level, now()});
}

void ReceiverStateData::startUsedReport(GnssSystem system)
{
    UsedSatellites &used = m_used.at(size_t(systemIndex(system)));
    if (used.report != m_usedReport) {
        used.prns.reset();
        used.report = m_usedReport;
    }
    used.reported = true;
    used.reportedMs = now();
}

void ReceiverStateData::markUsed(SatelliteId id)
{
    startUsedReport(id.system);
    m_used.at(size_t(systemIndex(id.system))).prns.set(size_t(id.prn));
}

void ReceiverStateData::samplePosition()
{
    if (m_basis == ClockBasis::SinceStart || m_fix.quality == FixQuality::NoFix || !m_fix.hasPosition())
        return;
    ++m_positionSamples;
    const double height = isKnown(m_fix.heightEllipsoid) ? m_fix.heightEllipsoid : m_fix.heightMsl;
    m_positions.add({now(), m_fix.lat, m_fix.lon, height, m_fix.quality});
}

void ReceiverStateData::recordHistory(qint64 timeMs)
{
    HistorySample sample;
    sample.timeMs = timeMs;
    sample.satellitesUsed = m_fix.satellitesUsed;
    sample.hdop = m_fix.hdop;
    sample.pdop = m_fix.pdop;
    sample.quality = m_fix.quality;
    sample.correctionAge = m_fix.correctionAge;
    // Once a second: straight from the store, without naming every signal.
    const qint64 nowMs = now();
    double sum = 0;
    int withCn0 = 0;
    for (const auto &[key, entry] : m_satellites) {
        double best = kUnknown;
        if (!isLive(entry, nowMs, &best))
            continue;
        ++sample.satellitesInView;
        if (isKnown(best)) {
            sum += best;
            ++withCn0;
        }
    }
    sample.meanCn0 = withCn0 > 0 ? sum / withCn0 : kUnknown;
    m_history.push_back(sample);
}

void ReceiverStateData::prune(qint64 nowMs)
{
    for (auto it = m_satellites.begin(); it != m_satellites.end();) {
        SatelliteEntry &entry = it->second;
        entry.tracked.erase(std::remove_if(entry.tracked.begin(), entry.tracked.end(),
                                [&](const SignalEntry &s) { return !isFresh(s.seenMs, nowMs); }),
            entry.tracked.end());
        if (entry.positionSeen && !isFresh(entry.positionSeenMs, nowMs)) {
            entry.positionSeen = false;
            entry.elevation = entry.azimuth = kUnknown;
        }
        it = entry.positionSeen || !entry.tracked.isEmpty() ? std::next(it) : m_satellites.erase(it);
    }
    const qint64 reach = m_settings.historyMs;
    for (auto it = m_trails.begin(); it != m_trails.end();) {
        QVector<SkyPoint> &trail = it->second;
        trail.erase(std::remove_if(trail.begin(), trail.end(),
                        [&](const SkyPoint &p) { return !reaches(p.timeMs, nowMs, reach); }),
            trail.end());
        it = trail.isEmpty() ? m_trails.erase(it) : std::next(it);
    }
    while (!m_history.empty()
        && (!reaches(m_history.front().timeMs, nowMs, reach) || qint64(m_history.size()) > reach / 1000))
        m_history.pop_front();
}

SatelliteInfo ReceiverStateData::describe(int key, const SatelliteEntry &entry, qint64 nowMs) const
{
    SatelliteInfo info;
    const SatelliteId id = satelliteOfKey(key);
    info.system = id.system;
    info.prn = id.prn;
    if (entry.positionSeen && isFresh(entry.positionSeenMs, nowMs)) {
        info.elevation = entry.elevation;
        info.azimuth = entry.azimuth;
    }
    QVarLengthArray<SignalEntry, 4> fresh;
    for (const SignalEntry &signal : entry.tracked) {
        if (isFresh(signal.seenMs, nowMs))
            fresh.append(signal);
    }
    std::sort(
        fresh.begin(), fresh.end(), [](const SignalEntry &a, const SignalEntry &b) { return a.signal < b.signal; });
    for (const SignalEntry &signal : fresh)
        info.trackedSignals.append({signalName(signal.signal), signal.nmeaSignalId, signal.cn0});
    const UsedSatellites &used = m_used.at(size_t(systemIndex(id.system)));
    info.used = used.reported && isFresh(used.reportedMs, nowMs) && used.prns.test(size_t(id.prn));
    return info;
}

bool ReceiverStateData::isLive(const SatelliteEntry &entry, qint64 nowMs, double *bestCn0) const
{
    bool live = entry.positionSeen && isFresh(entry.positionSeenMs, nowMs);
    for (const SignalEntry &signal : entry.tracked) {
        if (!isFresh(signal.seenMs, nowMs))
            continue;
        live = true;
        if (isKnown(signal.cn0) && (!isKnown(*bestCn0) || signal.cn0 > *bestCn0))
            *bestCn0 = signal.cn0;
    }
    return live;
}

QVector<SatelliteInfo> ReceiverStateData::satellites() const
{
    const qint64 nowMs = now();
    QVector<SatelliteInfo> live;
    for (const auto &[key, entry] : m_satellites) {
        double bestCn0 = kUnknown;
        if (isLive(entry, nowMs, &bestCn0))
            live.append(describe(key, entry, nowMs));
    }
    return live;
}

ReceiverSnapshot ReceiverStateData::snapshot() const
{
    ReceiverSnapshot snapshot;
    snapshot.timeMs = now();
    snapshot.fix = m_fix;
    snapshot.satellites = satellites();
    for (const auto &[key, points] : m_trails) {
        SatelliteTrail trail;
        const SatelliteId id = satelliteOfKey(key);
        trail.system = id.system;
        trail.prn = id.prn;
        std::copy_if(points.cbegin(), points.cend(), std::back_inserter(trail.points),
            [&](const SkyPoint &p) { return reaches(p.timeMs, snapshot.timeMs, m_settings.historyMs); });
        if (!trail.points.isEmpty())
            snapshot.trails.append(trail);
    }
    const PositionSamples::Results statistics = m_positions.compute(m_settings.reference);
    snapshot.referenceLat = statistics.reference.lat;
    snapshot.referenceLon = statistics.reference.lon;
    snapshot.referenceHeight = statistics.reference.height;
    snapshot.deviations = statistics.deviations;
    snapshot.window = statistics.window;
    snapshot.sinceReset = statistics.sinceReset;
    snapshot.history = QVector<HistorySample>(m_history.cbegin(), m_history.cend());
    return snapshot;
}

ReceiverState::ReceiverState(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<ReceiverStateData>(StateSettings()))
    , m_framer(kMaxLineBytes)
{
    m_notifyTimer.setSingleShot(true);
    m_notifyTimer.setInterval(notifyIntervalMs);
    connect(&m_notifyTimer, &QTimer::timeout, this, [this] {
        m_changePending = false;
        emit changed();
    });
}

ReceiverState::~ReceiverState() = default;

void ReceiverState::feed(const QByteArray &bytes)
{
    const quint64 before = d->linesUsed();
    m_framer.feed(bytes, [this](const char *line, int length) { d->takeLine(line, length); });
    if (d->linesUsed() != before || d->holdsBack())
        noteChange();
}

void ReceiverState::feedLine(QStringView line)
{
    if (d->takeLine(line))
        noteChange();
}

void ReceiverState::reset()
{
    d = std::make_unique<ReceiverStateData>(d->settings());
    m_framer.clear();
    noteChange();
}

void ReceiverState::resetStatistics()
{
    d->restartStatistics();
    noteChange();
}

void ReceiverState::setStatisticsWindowSeconds(int seconds)
{
    d->setWindowMs(qint64(qBound(1, seconds, kMaxSeconds)) * 1000);
    noteChange();
}

int ReceiverState::statisticsWindowSeconds() const
{
    return int(d->settings().windowMs / 1000);
}

void ReceiverState::setHistorySeconds(int seconds)
{
    d->setHistoryMs(qint64(qBound(1, seconds, kMaxSeconds)) * 1000);
    noteChange();
}

void ReceiverState::setReferencePoint(double lat, double lon, double height)
{
    if (!(std::abs(lat) <= 90.0 && std::abs(lon) <= 180.0))
        return;
    d->setReference(ReferencePoint{lat, lon, isKnown(height) ? height : 0.0});
    noteChange();
}

void ReceiverState::clearReferencePoint()
{
    d->setReference(std::nullopt);
    noteChange();
}

const FixInfo &ReceiverState::fix() const
{
    return d->fix();
}

QByteArray ReceiverState::latestGga() const
{
    return d->latestGga();
}

QVector<SatelliteInfo> ReceiverState::satellites() const
{
    d->settle();
    return d->satellites();
}

ReceiverSnapshot ReceiverState::snapshot() const
{
    d->settle();
    return d->snapshot();
}

qint64 ReceiverState::nowMs() const
{
    return d->now();
}

quint64 ReceiverState::linesUsed() const
{
    return d->linesUsed();
}

void ReceiverState::noteChange()
{
    if (m_changePending)
        return;
    m_changePending = true;
    m_notifyTimer.start();
}
