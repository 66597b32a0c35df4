// SPDX-License-Identifier: BSD-3-Clause
#include "sessionindex.h"

#include <QDateTime>
#include <QIODevice>
#include <QRegularExpression>

#include <algorithm>
#include <limits>

qint64 SessionIndex::epochEnd(int epoch) const
{
    return epoch + 1 < m_offsets.size() ? m_offsets.at(epoch + 1) : m_fileSize;
}

int SessionIndex::epochAt(qint64 offset) const
{
    const auto after = std::upper_bound(m_offsets.cbegin(), m_offsets.cend(), offset);
    return int(after - m_offsets.cbegin()) - 1;
}

int SessionIndex::findTime(qint64 timeMs, bool timeOfDayOnly, int from) const
{
    constexpr qint64 dayMs = 86400000;
    const auto comparable = [&](int epoch) {
        const qint64 ms = epochTimeMs(epoch);
        return timeOfDayOnly ? ((ms % dayMs) + dayMs) % dayMs : ms;
    };
    const qint64 wanted = timeOfDayOnly ? ((timeMs % dayMs) + dayMs) % dayMs : timeMs;
    // The time is reached where an epoch is at or past it and the one before was short
    // of it (receiver time may jump back, and a time of day comes back every day).
    const auto reaches = [&](int epoch) {
        const qint64 at = comparable(epoch);
        if (at < wanted)
            return false;
        return epoch == 0 ? at - wanted < 1000 : comparable(epoch - 1) < wanted;
    };
    const int count = m_times.size();
    from = std::clamp(from, 0, std::max(count - 1, 0));
    for (int i = 0; i < count; ++i) {
        const int epoch = (from + i) % count;
        if (reaches(epoch))
            return epoch;
    }
    return -1;
}

void SessionIndex::appendEpoch(qint64 offset, qint64 timeMs, FixQuality quality, int satellitesUsed)
{
    if (m_offsets.isEmpty())
        m_baseMs = timeMs;
    const qint64 relative = timeMs - m_baseMs;
    // Receiver time more than 24 days from the first epoch's is kept at that distance.
    m_times.append(qint32(std::clamp<qint64>(relative, std::numeric_limits<qint32>::min(),
                                            std::numeric_limits<qint32>::max())));
    m_offsets.append(offset);
    m_qualities.append(quint8(quality));
    m_satellites.append(satellitesUsed < 0 || satellitesUsed >= 0xff ? quint8(0xff) : quint8(satellitesUsed));
}

qint64 SessionIndex::memoryBytes() const
{
    qint64 bytes = sizeof(*this);
    bytes += m_offsets.capacity() * qint64(sizeof(qint64)) + m_times.capacity() * qint64(sizeof(qint32));
    bytes += m_qualities.capacity() + m_satellites.capacity();
    bytes += m_markers.capacity() * qint64(sizeof(SessionMarker));
    bytes += m_checkpoints.capacity() * qint64(sizeof(Checkpoint)) + m_memory.capacity() * qint64(sizeof(LineSpan));
    for (const QByteArray &name : m_kindNames)
        bytes += name.capacity() + qint64(sizeof(QByteArray));
    return bytes;
}

// The last checkpoint at or before the epoch that lies at least reachMs of receiver
// time before it; a recording whose time jumps or stands still goes back no further
// than maxReplayBytes.
int SessionIndex::checkpointBefore(int epoch, qint64 reachMs) const
{
    constexpr qint64 maxReplayBytes = 64 << 20;
    const auto notAfter = std::upper_bound(m_checkpoints.cbegin(), m_checkpoints.cend(), epoch,
                                           [](int e, const Checkpoint &point) { return e < point.epoch; });
    int checkpoint = int(notAfter - m_checkpoints.cbegin()) - 1;
    const qint64 targetMs = epochTimeMs(epoch);
    const qint64 end = epochEnd(epoch);
    while (checkpoint > 0) {
        const int at = m_checkpoints.at(checkpoint).epoch;
        if (targetMs - epochTimeMs(at) >= reachMs || end - m_offsets.at(at) >= maxReplayBytes)
            break;
        --checkpoint;
    }
    return std::max(checkpoint, 0);
}

SeekPlan SessionIndex::planSeek(int epoch) const
{
    SeekPlan plan;
    if (m_offsets.isEmpty() || m_checkpoints.isEmpty())
        return plan;
    epoch = std::clamp(epoch, 0, m_offsets.size() - 1);
    plan.endOffset = epochEnd(epoch);
    const Checkpoint &pages = m_checkpoints.at(checkpointBefore(epoch, pageReplayMs));
    const Checkpoint &views = m_checkpoints.at(checkpointBefore(epoch, viewReplayMs));
    plan.pagesFrom = m_offsets.at(pages.epoch);
    plan.viewsFrom = std::min(plan.pagesFrom, m_offsets.at(views.epoch));
    plan.pageMemory = m_memory.mid(pages.memoryBegin, pages.memoryCount);
    return plan;
}

namespace {

bool readSpan(QIODevice &recording, qint64 offset, qint64 length, QByteArray *into, QString *error)
{
    if (length <= 0)
        return true;
    const int at = into->size();
    into->resize(at + int(length));
    if (!recording.seek(offset) || recording.read(into->data() + at, length) != length) {
        *error = QStringLiteral("cannot read the recording at byte %1: %2").arg(offset).arg(recording.errorString());
        return false;
    }
    return true;
}

} // namespace

bool readSeekRebuild(QIODevice &recording, const SeekPlan &plan, SeekRebuild *rebuild, QString *error)
{
    *rebuild = SeekRebuild();
    rebuild->endOffset = plan.endOffset;
    QString ignored;
    error = error ? error : &ignored;
    for (const LineSpan &line : plan.pageMemory) {
        if (!readSpan(recording, line.offset, line.length, &rebuild->pageMemory, error))
            return false;
    }
    return readSpan(recording, plan.viewsFrom, plan.pagesFrom - plan.viewsFrom, &rebuild->viewsOnly, error)
        && readSpan(recording, plan.pagesFrom, plan.endOffset - plan.pagesFrom, &rebuild->both, error);
}

bool parseReceiverTime(const QString &text, qint64 *ms, bool *timeOfDayOnly)
{
    const QString trimmed = text.trimmed();
    // The receiver's way of writing a time of day, with tenths or thousandths.
    static const QRegularExpression timeOfDay(QStringLiteral("^(\\d{1,2}):(\\d{2})(?::(\\d{2})(?:\\.(\\d{1,3}))?)?$"));
    const QRegularExpressionMatch match = timeOfDay.match(trimmed);
    if (match.hasMatch()) {
        const QTime time(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt(),
                         match.captured(4).leftJustified(3, QLatin1Char('0')).toInt());
        if (!time.isValid())
            return false;
        *ms = time.msecsSinceStartOfDay();
        *timeOfDayOnly = true;
        return true;
    }
    QDateTime dateTime = QDateTime::fromString(trimmed, Qt::ISODateWithMs);
    if (!dateTime.isValid() || !trimmed.contains(QLatin1Char('T')))
        return false;
    if (dateTime.timeSpec() == Qt::LocalTime)
        dateTime.setTimeSpec(Qt::UTC);
    *ms = dateTime.toMSecsSinceEpoch();
    *timeOfDayOnly = false;
    return true;
}
