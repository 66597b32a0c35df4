#include "sessionindex.h"

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
    const auto comparable = [&](qint64 ms) {
        return timeOfDayOnly ? ((ms % dayMs) + dayMs) % dayMs : ms;
    };
    const qint64 wanted = comparable(timeMs);
    for (int epoch = std::max(0, from); epoch < m_times.size(); ++epoch) {
        if (comparable(epochTimeMs(epoch)) >= wanted)
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
