// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldvalues.h"
#include "positionstatistics.h"
#include "satellitenumbers.h"

#include <QElapsedTimer>
#include <QVarLengthArray>
#include <bitset>
#include <deque>
#include <limits>
#include <map>

// The user's choices, which outlive ReceiverState::reset().
struct StateSettings
{
    qint64 windowMs = 600000;
    qint64 historyMs = 600000;
    std::optional<ReferencePoint> reference;
};

// What ReceiverState keeps and its clock (receiverstate.cpp), and the readers of the
// sentences and logs (sentencereaders.cpp). ReceiverState adds the byte framing and
// the notifications.
class ReceiverStateData
{
public:
    explicit ReceiverStateData(const StateSettings &settings);

    // One line, with or without its "\r\n": true when it is of a kind the state reads
    // and its checksum is valid. Other kinds are refused from their first bytes.
    bool takeLine(const char *bytes, int length);
    bool takeLine(QStringView line);
    // Reads the observation log held back by the pace limit; call before reading out.
    void settle();
    bool holdsBack() const { return !m_heldBack.isEmpty(); }

    const StateSettings &settings() const { return m_settings; }
    void setWindowMs(qint64 windowMs);
    void setHistoryMs(qint64 historyMs);
    void setReference(const std::optional<ReferencePoint> &reference);
    void restartStatistics() { m_positions.restartSinceReset(); }

    qint64 now() const;
    // What the clock is: the time since the start, a time of day (counted from
    // 1970-01-01 until a date is seen) or a dated receiver time. Finer sources win.
    enum class ClockBasis { SinceStart, TimeOfDay, Dated };
    ClockBasis clockBasis() const { return m_basis; }
    const FixInfo &fix() const { return m_fix; }
    const QByteArray &latestGga() const { return m_latestGga; }
    QVector<SatelliteInfo> satellites() const;
    ReceiverSnapshot snapshot() const;
    quint64 linesUsed() const { return m_linesUsed; }
    // Positions taken so far (one per line that gave a fix with a position and a
    // receiver time): a change tells that the current epoch has a position of its own.
    quint64 positionSamples() const { return m_positionSamples; }

private:
    using Reader = void (ReceiverStateData::*)(const LineFields &fields);
    struct LineKind
    {
        const char *tag; // the sentence type, or the log's name with "A,"
        bool log;
        Reader read;
        // Long, frequent logs whose reading is paced (receiverstate.cpp, "Pace").
        bool paced;
    };
    static const LineKind s_lineKinds[];
    template <typename Char>
    static const LineKind *kindOf(const Char *text, int length);
    bool take(const LineKind &kind, const QString &line, bool setsClock = true);
    bool holdBack(const LineKind &kind, const char *bytes, int length);

    struct SignalEntry
    {
        int signal; // see signalnames.h
        int nmeaSignalId;
        double cn0;
        qint64 seenMs;
    };
    struct SatelliteEntry
    {
        double elevation = kUnknown, azimuth = kUnknown;
        bool positionSeen = false;
        qint64 positionSeenMs = 0;
        QVarLengthArray<SignalEntry, 4> tracked;
    };
    // The satellites of one system in the last report of used satellites.
    struct UsedSatellites
    {
        std::bitset<256> prns;
        bool reported = false;
        qint64 reportedMs = 0;
        quint64 report = 0;
    };
    // The clock.
    void takeTimeOfDay(int timeOfDayMs);
    void takeDateTime(const QDate &date, int timeOfDayMs);
    void setClock(qint64 ms, ClockBasis basis);
    void closeSecond(qint64 newNowMs);
    void shiftStamps(qint64 deltaMs);
    bool isFresh(qint64 stampMs, qint64 nowMs) const;

    // The store.
    SatelliteEntry &satellite(SatelliteId id);
    void setSkyPosition(SatelliteId id, SatelliteEntry &entry, double elevation, double azimuth);
    void setSignal(SatelliteEntry &entry, int signal, int nmeaSignalId, double cn0);
    void startUsedReport(GnssSystem system);
    void markUsed(SatelliteId id);
    void samplePosition();
    void recordHistory(qint64 timeMs);
    void prune(qint64 nowMs);
    SatelliteInfo describe(int key, const SatelliteEntry &entry, qint64 nowMs) const;
    // A fresh position or a fresh signal; bestCn0 becomes the best fresh C/N0.
    bool isLive(const SatelliteEntry &entry, qint64 nowMs, double *bestCn0) const;

    // The readers, one per kind of line.
    void readLogTime(const LineFields &header);
    void readGga(const LineFields &f);
    void readRmc(const LineFields &f);
    void readGsa(const LineFields &f);
    void readGsv(const LineFields &f);
    void readGst(const LineFields &f);
    void readVtg(const LineFields &f);
    void readZda(const LineFields &f);
    void readHdt(const LineFields &f);
    void readBestpos(const LineFields &f);
    void readBestvel(const LineFields &f);
    void readPsrdop(const LineFields &f);
    void readSatvis2(const LineFields &f);
    void readRange(const LineFields &f);
    void readHeading(const LineFields &f);

    StateSettings m_settings;
    FixInfo m_fix;
    std::map<int, SatelliteEntry> m_satellites; // by satelliteKey()
    std::array<UsedSatellites, 7> m_used;       // by systemIndex()
    quint64 m_usedReport = 0;
    std::map<int, QVector<SkyPoint>> m_trails;
    std::deque<HistorySample> m_history;
    PositionSamples m_positions;

    ClockBasis m_basis = ClockBasis::SinceStart;
    qint64 m_receiverMs = 0;
    QElapsedTimer m_sinceStart;
    // The time since start as of the line being read or the read-out: one clock
    // reading per line, however many satellites it stamps.
    qint64 m_startClockMs = 0;
    qint64 m_second = std::numeric_limits<qint64>::min(); // the second being lived, for the history

    FieldViews m_fields;
    quint64 m_linesUsed = 0;
    quint64 m_positionSamples = 0;

    // The pace of the paced logs: when one was last read (time since start), and the
    // newest one held back since, with its kind.
    qint64 m_pacedReadMs = -1000000; // long before the start: the first one is read
    QByteArray m_heldBack;
    QByteArray m_latestGga;
    const LineKind *m_heldBackKind = nullptr;
};
