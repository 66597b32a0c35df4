// SPDX-License-Identifier: BSD-3-Clause
#include "messagestatistics.h"

#include <QJsonObject>

#include <algorithm>
#include <limits>

namespace {

quint32 clampedAmount(qint64 amount)
{
    return quint32(std::clamp<qint64>(amount, 0, std::numeric_limits<quint32>::max()));
}

} // namespace

void MessageStatistics::add(const LineRecord &record)
{
    const qint64 ms = m_totals.lines == 0 ? record.receivedMs : std::max(record.receivedMs, m_clockMs);
    m_clockMs = ms;
    const quint64 size = quint64(std::max<qint64>(record.size, 0));
    ++m_totals.lines;
    m_totals.bytes += size;
    if (record.outcome == LineOutcome::Garbage)
        m_totals.garbageBytes += size;
    if (isDamaged(record.outcome))
        ++m_totals.damagedLines;
    m_lineRate.add(ms, 1);
    m_byteRate.add(ms, clampedAmount(record.size));
    if (record.kind.isEmpty())
        return;

    const int number = m_index.add(record.kind);
    if (number == m_kinds.size()) {
        m_kinds.append(KindEntry());
        m_kinds.last().statistics.kind = m_index.kindAt(number);
    }
    KindEntry &entry = m_kinds[number];
    KindStatistics &kind = entry.statistics;
    if (kind.lines > 0) {
        // In double: two far-apart junk times must not overflow.
        const double gapS = (double(ms) - double(kind.lastMs)) / 1000.0;
        entry.gapSumS += gapS;
        kind.largestGapS = std::max(kind.largestGapS, gapS);
    }
    ++kind.lines;
    if (record.outcome == LineOutcome::BadChecksum || record.outcome == LineOutcome::CutShort)
        ++kind.badChecksum;
    kind.bytes += size;
    kind.lastMs = ms;
    kind.lastLine = record.bytes.left(maxLastLineBytes);
    kind.page = record.page;
    entry.lineRate.add(ms, 1);
}

void MessageStatistics::reset()
{
    *this = MessageStatistics();
}

KindStatistics MessageStatistics::withRates(const KindEntry &entry, qint64 nowMs) const
{
    KindStatistics kind = entry.statistics;
    kind.rateHz = entry.lineRate.perSecond(nowMs);
    kind.meanGapS = kind.lines > 1 ? entry.gapSumS / double(kind.lines - 1) : 0;
    return kind;
}

QVector<KindStatistics> MessageStatistics::kinds(qint64 nowMs) const
{
    QVector<KindStatistics> kinds;
    kinds.reserve(m_kinds.size());
    for (const KindEntry &entry : m_kinds)
        kinds << withRates(entry, nowMs);
    return kinds;
}

TrafficTotals MessageStatistics::totals(qint64 nowMs) const
{
    TrafficTotals totals = m_totals;
    totals.linesPerSecond = m_lineRate.perSecond(nowMs);
    totals.bytesPerSecond = m_byteRate.perSecond(nowMs);
    return totals;
}

QJsonArray MessageStatistics::toJson(qint64 nowMs) const
{
    QJsonArray array;
    for (const KindEntry &entry : m_kinds) {
        const KindStatistics kind = withRates(entry, nowMs);
        array.append(QJsonObject{{QStringLiteral("kind"), QString::fromLatin1(kind.kind)},
                                 {QStringLiteral("lines"), qint64(kind.lines)},
                                 {QStringLiteral("badChecksum"), qint64(kind.badChecksum)},
                                 {QStringLiteral("bytes"), qint64(kind.bytes)},
                                 {QStringLiteral("rateHz"), kind.rateHz}});
    }
    return array;
}
