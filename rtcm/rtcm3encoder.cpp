// SPDX-License-Identifier: BSD-3-Clause
#include "rtcm3encoder.h"

#include "rtcm3bitwriter.h"
#include "rtcm3framer.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kMetresPerMillisecond = 299792.458; // light in one millisecond
constexpr qint64 kWeekMs = qint64(7) * 86400 * 1000;
constexpr qint64 kDayMs = qint64(86400) * 1000;
constexpr qint64 kBdsBehindGpsMs = 14000;
constexpr qint64 kGlonassAheadOfUtcMs = qint64(3) * 3600 * 1000;

constexpr int kInvalidRoughMs = 255;
constexpr qint64 kInvalidFinePseudorange = -(1 << 14);
constexpr qint64 kInvalidFinePhase = -(1 << 21);
constexpr double kFinePseudorangeUnits = 1 << 24; // per millisecond
constexpr double kFinePhaseUnits = 1 << 29;

// One satellite's cells in signal order; null where the satellite lacks the signal.
using CellRow = QVector<const Rtcm3SignalObservation *>;

// The satellites and signals that go into one message.
struct MsmBlock
{
    QVector<const Rtcm3SatelliteObservation *> satellites; // ascending ids
    quint32 signalMask = 0; // bit (32 - id) for signal id
};

qint64 positiveModulo(qint64 value, qint64 modulus)
{
    const qint64 r = value % modulus;
    return r < 0 ? r + modulus : r;
}

bool isValidSatellite(int id)
{
    return id >= 1 && id <= 64;
}

bool isValidSignal(int id)
{
    return id >= 1 && id <= 32;
}

quint32 signalBit(int id)
{
    return 1u << (32 - id);
}

quint32 signalsOf(const Rtcm3SatelliteObservation &satellite)
{
    quint32 mask = 0;
    for (const Rtcm3SignalObservation &o : satellite.observations) {
        if (isValidSignal(o.signalId))
            mask |= signalBit(o.signalId);
    }
    return mask;
}

int bitCount(quint32 mask)
{
    int n = 0;
    for (; mask; mask &= mask - 1)
        ++n;
    return n;
}

const Rtcm3SignalObservation *observationOf(const Rtcm3SatelliteObservation &satellite, int signalId)
{
    for (const Rtcm3SignalObservation &o : satellite.observations) {
        if (o.signalId == signalId)
            return &o;
    }
    return nullptr;
}

// Satellites in id order, one entry per id, grouped so that no message has more
// cells than the cell mask can hold.
QVector<MsmBlock> blocksOf(const Rtcm3MsmEpoch &epoch)
{
    QVector<const Rtcm3SatelliteObservation *> ordered;
    for (const Rtcm3SatelliteObservation &s : epoch.satellites) {
        if (isValidSatellite(s.satelliteId))
            ordered << &s;
    }
    std::stable_sort(ordered.begin(), ordered.end(), [](const auto *a, const auto *b) {
        return a->satelliteId < b->satelliteId;
    });
    ordered.erase(std::unique(ordered.begin(), ordered.end(),
                              [](const auto *a, const auto *b) { return a->satelliteId == b->satelliteId; }),
                  ordered.end());

    QVector<MsmBlock> blocks(1);
    for (const Rtcm3SatelliteObservation *s : qAsConst(ordered)) {
        MsmBlock &block = blocks.last();
        const quint32 joined = block.signalMask | signalsOf(*s);
        if ((block.satellites.size() + 1) * bitCount(joined) > Rtcm3Encoder::kMaxMsmCells) {
            blocks.append(MsmBlock{{s}, signalsOf(*s)});
            continue;
        }
        block.satellites << s;
        block.signalMask = joined;
    }
    return blocks;
}

// The rough range is the satellite's: the first signal with a range gives it.
double roughRangeMs(const CellRow &cells)
{
    for (const Rtcm3SignalObservation *o : cells) {
        if (!o)
            continue;
        if (!std::isnan(o->pseudorange))
            return o->pseudorange / kMetresPerMillisecond;
        if (!std::isnan(o->phaseRange))
            return o->phaseRange / kMetresPerMillisecond;
    }
    return -1.0;
}

// value - reference in units, or the field's invalid mark when unknown or out of reach.
qint64 fineField(double metres, double referenceMs, bool referenceValid, double units, qint64 invalid)
{
    if (!referenceValid || std::isnan(metres))
        return invalid;
    const double fine = std::round((metres / kMetresPerMillisecond - referenceMs) * units);
    return std::fabs(fine) < double(-invalid) ? qint64(fine) : invalid;
}

int cnrField(double cn0)
{
    return cn0 > 0.0 ? int(qBound(1L, std::lround(cn0), 63L)) : 0;
}

QByteArray msm4Block(const Rtcm3MsmEpoch &epoch, const MsmBlock &block, bool moreFollow)
{
    QVector<int> signalIds;
    for (int id = 1; id <= 32; ++id) {
        if (block.signalMask & signalBit(id))
            signalIds << id;
    }
    // Per satellite its cells in signal order, then the satellite's rough range.
    QVector<CellRow> cells;
    QVector<qint64> roughUnits; // 1/1024 ms; -1: no valid range
    for (const Rtcm3SatelliteObservation *s : block.satellites) {
        CellRow row;
        for (int id : qAsConst(signalIds))
            row << observationOf(*s, id);
        const double rough = roughRangeMs(row);
        const qint64 units = rough < 0.0 ? -1 : std::llround(rough * 1024.0);
        roughUnits << (units >= 0 && units / 1024 < kInvalidRoughMs ? units : -1);
        cells << row;
    }

    Rtcm3BitWriter w(600);
    w.putUnsigned(quint64(Rtcm3Encoder::msm4MessageNumber(epoch.system)), 12);
    w.putUnsigned(quint64(epoch.stationId), 12);
    w.putUnsigned(Rtcm3Encoder::msmEpochTime(epoch.system, epoch.gpsMilliseconds, epoch.leapSeconds), 30);
    w.putBit(moreFollow);
    w.putUnsigned(0, 3);  // station data set counter: one set only
    w.putUnsigned(0, 7);  // reserved
    w.putUnsigned(0, 2);  // clock steering: none
    w.putUnsigned(0, 2);  // external clock: none
    w.putBit(false);      // no divergence-free smoothing
    w.putUnsigned(0, 3);  // smoothing interval: none
    quint64 satelliteMask = 0;
    for (const Rtcm3SatelliteObservation *s : block.satellites)
        satelliteMask |= quint64(1) << (64 - s->satelliteId);
    w.putUnsigned(satelliteMask, 64);
    w.putUnsigned(block.signalMask, 32);
    for (const CellRow &row : qAsConst(cells)) {
        for (const Rtcm3SignalObservation *o : row)
            w.putBit(o != nullptr);
    }

    for (qint64 units : qAsConst(roughUnits))
        w.putUnsigned(units < 0 ? kInvalidRoughMs : quint64(units / 1024), 8);
    for (qint64 units : qAsConst(roughUnits))
        w.putUnsigned(units < 0 ? 0 : quint64(units % 1024), 10);

    // Each signal field for all cells before the next field.
    const auto eachCell = [&](auto &&write) {
        for (int i = 0; i < cells.size(); ++i) {
            const double roughMs = double(roughUnits.at(i)) / 1024.0;
            for (const Rtcm3SignalObservation *o : cells.at(i)) {
                if (o)
                    write(*o, roughMs, roughUnits.at(i) >= 0);
            }
        }
    };
    eachCell([&](const Rtcm3SignalObservation &o, double rough, bool valid) {
        w.putSigned(fineField(o.pseudorange, rough, valid, kFinePseudorangeUnits, kInvalidFinePseudorange), 15);
    });
    eachCell([&](const Rtcm3SignalObservation &o, double rough, bool valid) {
        w.putSigned(fineField(o.phaseRange, rough, valid, kFinePhaseUnits, kInvalidFinePhase), 22);
    });
    eachCell([&](const Rtcm3SignalObservation &o, double, bool) {
        w.putUnsigned(quint64(Rtcm3Encoder::lockTimeIndicator(o.lockTime)), 4);
    });
    eachCell([&](const Rtcm3SignalObservation &o, double, bool) { w.putBit(o.halfCycleAmbiguity); });
    eachCell([&](const Rtcm3SignalObservation &o, double, bool) { w.putUnsigned(quint64(cnrField(o.cn0)), 6); });
    return Rtcm3Encoder::frame(w.bytes());
}

} // namespace

namespace Rtcm3Encoder {

QByteArray frame(const QByteArray &payload)
{
    if (payload.size() > Rtcm3Framer::kMaxPayload)
        return QByteArray();
    QByteArray out;
    out.reserve(Rtcm3Framer::kHeaderSize + payload.size() + Rtcm3Framer::kCrcSize);
    out.append(char(Rtcm3Framer::kPreamble));
    out.append(char(payload.size() >> 8));
    out.append(char(payload.size() & 0xFF));
    out.append(payload);
    const quint32 crc = crc24q(reinterpret_cast<const uchar *>(out.constData()), out.size());
    out.append(char(crc >> 16));
    out.append(char(crc >> 8));
    out.append(char(crc));
    return out;
}

QByteArray stationPosition(const Rtcm3StationPosition &station)
{
    const auto tenthsOfMillimetre = [](double metres) { return std::llround(metres * 10000.0); };
    Rtcm3BitWriter w(19);
    w.putUnsigned(1005, 12);
    w.putUnsigned(quint64(station.stationId), 12);
    w.putUnsigned(0, 6); // realisation year of the reference frame: not given
    w.putBit(station.gps);
    w.putBit(station.glonass);
    w.putBit(station.galileo);
    w.putBit(station.referenceStation);
    w.putSigned(tenthsOfMillimetre(station.ecefX), 38);
    w.putBit(false); // single receiver oscillator: not asserted
    w.putBit(false); // reserved
    w.putSigned(tenthsOfMillimetre(station.ecefY), 38);
    w.putUnsigned(0, 2); // quarter cycle indicator: no correction
    w.putSigned(tenthsOfMillimetre(station.ecefZ), 38);
    return frame(w.bytes());
}

QVector<QByteArray> msm4(const Rtcm3MsmEpoch &epoch)
{
    QVector<QByteArray> frames;
    if (epoch.system == Rtcm3System::None)
        return frames;
    const QVector<MsmBlock> blocks = blocksOf(epoch);
    for (int i = 0; i < blocks.size(); ++i)
        frames << msm4Block(epoch, blocks.at(i), epoch.moreMessagesFollow || i + 1 < blocks.size());
    return frames;
}

int msm4MessageNumber(Rtcm3System system)
{
    // MSM numbers run in tens per system, in the order of Rtcm3System.
    return system == Rtcm3System::None ? 0 : 1074 + 10 * int(system);
}

quint32 msmEpochTime(Rtcm3System system, qint64 gpsMilliseconds, int leapSeconds)
{
    switch (system) {
    case Rtcm3System::BDS:
        return quint32(positiveModulo(gpsMilliseconds - kBdsBehindGpsMs, kWeekMs));
    case Rtcm3System::GLONASS: {
        // The GPS epoch was a Sunday, day 0 of the GLONASS day of week.
        const qint64 glonass = gpsMilliseconds - qint64(leapSeconds) * 1000 + kGlonassAheadOfUtcMs;
        const qint64 dayOfWeek = positiveModulo(glonass, kWeekMs) / kDayMs;
        return quint32(dayOfWeek << 27 | positiveModulo(glonass, kDayMs));
    }
    default: // GPS time of week: GPS, Galileo, SBAS, QZSS, NavIC
        return quint32(positiveModulo(gpsMilliseconds, kWeekMs));
    }
}

int lockTimeIndicator(double seconds)
{
    const qint64 ms = seconds > 0.0 ? qint64(seconds * 1000.0) : 0;
    int indicator = 0;
    while (indicator < 15 && ms >= (qint64(32) << indicator))
        ++indicator;
    return indicator;
}

} // namespace Rtcm3Encoder
