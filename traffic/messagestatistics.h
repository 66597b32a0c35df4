// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "kindindex.h"
#include "linerecord.h"
#include "ratewindow.h"

#include <QHash>
#include <QJsonArray>
#include <QVector>

// Per kind of message: how many lines, how many damaged, how often. Times are the
// records' receivedMs (the console stamps recordings with the receiver's own time).
struct KindStatistics
{
    QByteArray kind;
    quint64 lines = 0;       // every line of the kind, whatever became of it
    quint64 badChecksum = 0; // of them, those whose checksum fails or is missing (cut short)
    quint64 bytes = 0;
    double rateHz = 0;       // lines per second over the last rateWindowMs
    double meanGapS = 0;     // between two lines of the kind; 0 before the second line
    double largestGapS = 0;
    qint64 lastMs = 0;       // when the last one came
    QByteArray lastLine;     // the newest line of the kind, for the field view
    int page = -1;           // the page of the newest line (-1: none took it)
};

struct TrafficTotals
{
    quint64 lines = 0; // lines and stretches of garbage
    quint64 bytes = 0;
    quint64 garbageBytes = 0;
    quint64 damagedLines = 0; // bad checksum, cut short, too long
    double bytesPerSecond = 0; // over the last rateWindowMs
    double linesPerSecond = 0;
};

// A record without a kind (garbage) counts only in the totals. At most
// KindIndex::maxKinds kinds are told apart; later ones are counted together under
// KindIndex::otherKinds(). A time earlier than one already seen counts as that time,
// so a clock stepped back makes no negative gaps.
class MessageStatistics
{
public:
    static constexpr qint64 rateWindowMs = RateWindow::windowMs;
    // Of the newest line of each kind, kept for the field view.
    static constexpr int maxLastLineBytes = 16 * 1024;

    void add(const LineRecord &record);
    void reset();

    // By kind, in the order the kinds first came; rates as of nowMs.
    QVector<KindStatistics> kinds(qint64 nowMs) const;
    TrafficTotals totals(qint64 nowMs) const;
    // [{"kind", "lines", "badChecksum", "bytes", "rateHz"}] for the JSON report.
    QJsonArray toJson(qint64 nowMs) const;
    // The newest time seen (after clamping); 0 before the first record. A replay of a
    // recording has rates as of this time rather than of the wall clock.
    qint64 latestMs() const { return m_clockMs; }

private:
    struct KindEntry
    {
        KindStatistics statistics;
        double gapSumS = 0;
        RateWindow lineRate;
    };
    KindStatistics withRates(const KindEntry &entry, qint64 nowMs) const;

    KindIndex m_index;
    QVector<KindEntry> m_kinds; // by their number in m_index
    TrafficTotals m_totals;
    RateWindow m_lineRate, m_byteRate;
    qint64 m_clockMs = 0;
};
