// SPDX-License-Identifier: BSD-3-Clause
// The one pass over a recording that builds its SessionIndex.
//
// Lines are cut as the message view cuts them. Each line goes to a receiver state,
// whose clock says the receiver time: a line that moves the clock to another time
// begins a new epoch there. When an epoch ends, the state's fix quality and satellites
// used are the epoch's, and the markers note what changed.
//
// Seeks (planSeek) replay a stretch before the target; the pages also need what came
// long before, such as a list sent once at start. So the scan keeps, per message kind,
// the last line with a valid checksum for each of the last few field counts seen (a
// page keeps the last row of a full line when a line one field short follows it), and
// every checkpoint copies that memory.
#include "sessionindex.h"

#include "linechecksum.h"
#include "lineframer.h"
#include "linerecord.h"
#include "receiverstatedata.h"

#include <QHash>
#include <QIODevice>

#include <algorithm>
#include <array>
#include <limits>

namespace {

// The message view's longest line: both cut the same lines.
constexpr int kMaxLineBytes = 256 * 1024;
constexpr qint64 kReadBytes = 4 << 20;
// Field counts remembered per kind, and kinds remembered (random bytes can invent a
// kind with every line).
constexpr int kCountsPerKind = 4;
constexpr int kMaxKinds = 1024;
// Markers beyond this many are dropped: a timeline cannot show more.
constexpr int kMaxMarkers = 100000;

int fieldCount(const char *line, int length)
{
    int count = 1;
    for (int i = 0; i < length; ++i)
        count += line[i] == ',' || line[i] == '*';
    return count;
}

} // namespace

class SessionScanner
{
public:
    explicit SessionScanner(SessionIndex &index) : m_index(index), m_state(StateSettings()) {}

    void takeLine(const char *line, int length);
    void finish();

private:
    struct Remembered
    {
        int fieldCount = -1;
        LineSpan span;
        quint64 stamp = 0;
    };
    struct KindTrack
    {
        int number = 0;
        int firstEpoch = 0;
        int lastEpoch = 0;
        int epochsSeen = 0;
        bool stopped = false;
        std::array<Remembered, kCountsPerKind> remembered;
    };

    void remember(KindTrack &track, const char *line, int length);
    KindTrack *track(const char *line, int length);
    void closeEpoch();
    void noteKindsStopped();
    void mark(SessionMarker::Kind kind, int value, int epoch);
    void checkpoint();

    SessionIndex &m_index;
    ReceiverStateData m_state;
    qint64 m_offset = 0; // of the line being read
    qint64 m_lastTime = 0;
    ReceiverStateData::ClockBasis m_basis = ReceiverStateData::ClockBasis::SinceStart;
    int m_epoch = -1;
    FixQuality m_lastQuality = FixQuality::NoFix;
    int m_lastSatellites = -1;
    QHash<QByteArray, KindTrack> m_kinds;
    quint64 m_stamp = 0;
    qint64 m_checkpointOffset = 0;
    qint64 m_checkpointTime = 0;
    friend class SessionIndex;
};

SessionScanner::KindTrack *SessionScanner::track(const char *line, int length)
{
    // Looked up in place: a copy only for a kind not seen before.
    const int kindLength = std::max(messageKindLength(line, length), 0);
    auto found = m_kinds.find(QByteArray::fromRawData(line + 1, kindLength));
    if (found != m_kinds.end())
        return &found.value();
    if (m_kinds.size() >= kMaxKinds)
        return nullptr;
    const QByteArray kind(line + 1, kindLength);
    KindTrack fresh;
    fresh.number = m_index.m_kindNames.size();
    fresh.firstEpoch = fresh.lastEpoch = std::max(m_epoch, 0);
    m_index.m_kindNames.append(kind);
    if (m_epoch > 0)
        mark(SessionMarker::Kind::KindAppeared, fresh.number, m_epoch);
    return &m_kinds.insert(kind, fresh).value();
}

void SessionScanner::remember(KindTrack &track, const char *line, int length)
{
    const int count = fieldCount(line, length);
    Remembered *slot = std::find_if(track.remembered.begin(), track.remembered.end(),
                                    [count](const Remembered &r) { return r.fieldCount == count; });
    if (slot == track.remembered.end()) {
        slot = std::min_element(track.remembered.begin(), track.remembered.end(),
                                [](const Remembered &a, const Remembered &b) { return a.stamp < b.stamp; });
    }
    *slot = {count, {m_offset, length}, ++m_stamp};
}

void SessionScanner::takeLine(const char *line, int length)
{
    const bool intact = checkLineChecksumBytes(line, length);
    m_state.takeLine(line, length);
    const ReceiverStateData::ClockBasis basis = m_state.clockBasis();
    if (basis != ReceiverStateData::ClockBasis::SinceStart) {
        const qint64 now = m_state.now();
        if (!m_index.m_hasReceiverTime) {
            // Lines before the first time belong to the first epoch.
            m_index.m_hasReceiverTime = true;
            m_index.m_baseMs = now;
            m_lastTime = now;
        } else if (basis != m_basis) {
            // A date came: the same instant, counted from its day. Times so far move along.
            m_index.m_baseMs += now - m_lastTime;
            m_checkpointTime += now - m_lastTime;
            m_lastTime = now;
        } else if (now != m_lastTime) {
            closeEpoch();
            m_lastTime = now;
            m_index.appendEpoch(m_offset, now, FixQuality::NoFix, -1);
            ++m_epoch;
        }
        m_basis = basis;
        m_index.m_hasDates = basis == ReceiverStateData::ClockBasis::Dated;
    }
    if (intact) {
        if (KindTrack *kind = track(line, length)) {
            remember(*kind, line, length);
            if (kind->stopped) {
                kind->stopped = false;
                mark(SessionMarker::Kind::KindAppeared, kind->number, m_epoch);
            }
            if (kind->lastEpoch != m_epoch || kind->epochsSeen == 0) {
                kind->lastEpoch = std::max(m_epoch, 0);
                ++kind->epochsSeen;
            }
        }
    }
    m_offset += length;
}

void SessionScanner::closeEpoch()
{
    const FixInfo &fix = m_state.fix();
    const int satellites = fix.satellitesUsed;
    const int last = m_index.m_offsets.size() - 1;
    m_index.m_qualities[last] = quint8(fix.quality);
    m_index.m_satellites[last] = satellites < 0 || satellites >= 0xff ? quint8(0xff) : quint8(satellites);
    if (fix.quality != m_lastQuality && (last > 0 || fix.quality != FixQuality::NoFix))
        mark(SessionMarker::Kind::Quality, int(fix.quality), last);
    if (satellites != m_lastSatellites && last > 0)
        mark(SessionMarker::Kind::SatellitesUsed, satellites, last);
    m_lastQuality = fix.quality;
    m_lastSatellites = satellites;
    noteKindsStopped();
    const qint64 next = m_offset;
    if (next - m_checkpointOffset >= SessionIndex::checkpointBytes
        || m_lastTime - m_checkpointTime >= SessionIndex::checkpointMs)
        checkpoint();
}

// A kind has stopped when it has been missing for three of its usual intervals (and
// at least five epochs, so one lost line is no event).
void SessionScanner::noteKindsStopped()
{
    for (KindTrack &kind : m_kinds) {
        if (kind.stopped || kind.epochsSeen < 2)
            continue;
        const int interval = (kind.lastEpoch - kind.firstEpoch) / (kind.epochsSeen - 1);
        if (m_epoch - kind.lastEpoch > std::max(3 * interval + 2, 5)) {
            kind.stopped = true;
            mark(SessionMarker::Kind::KindStopped, kind.number, kind.lastEpoch + 1);
        }
    }
}

void SessionScanner::mark(SessionMarker::Kind kind, int value, int epoch)
{
    if (m_index.m_markers.size() < kMaxMarkers)
        m_index.m_markers.append({std::max(epoch, 0), kind, value});
}

// Before the epoch that begins at m_offset: what the pages need of the lines so far.
void SessionScanner::checkpoint()
{
    SessionIndex::Checkpoint point;
    point.epoch = m_index.m_offsets.size();
    point.memoryBegin = m_index.m_memory.size();
    for (const KindTrack &kind : qAsConst(m_kinds)) {
        for (const Remembered &line : kind.remembered) {
            if (line.fieldCount >= 0)
                m_index.m_memory.append(line.span);
        }
    }
    point.memoryCount = m_index.m_memory.size() - point.memoryBegin;
    std::sort(m_index.m_memory.begin() + point.memoryBegin, m_index.m_memory.end(),
              [](const LineSpan &a, const LineSpan &b) { return a.offset < b.offset; });
    m_index.m_checkpoints.append(point);
    m_checkpointOffset = m_offset;
    m_checkpointTime = m_lastTime;
}

void SessionScanner::finish()
{
    if (!m_index.m_offsets.isEmpty())
        closeEpoch();
}

// Room for the epochs the whole file will hold at the rate of its first bytes, and a
// tenth more: a day at 20 Hz then grows without the copies of a doubling vector.
void SessionIndex::reserveFor(const QIODevice &device, qint64 bytesRead)
{
    if (device.isSequential() || device.size() <= bytesRead)
        return;
    const double expected = double(m_offsets.size()) * double(device.size()) / double(bytesRead) * 1.1 + 64;
    const int epochs = int(std::min(expected, double(std::numeric_limits<int>::max() / 8)));
    m_offsets.reserve(epochs);
    m_times.reserve(epochs);
    m_qualities.reserve(epochs);
    m_satellites.reserve(epochs);
}

bool SessionIndex::build(QIODevice &device, const std::atomic_bool *cancel,
                         const std::function<void(qint64)> &progress, QString *error)
{
    *this = SessionIndex();
    SessionScanner scanner(*this);
    // The first epoch begins with the file, and so does the first checkpoint (nothing
    // to remember yet); its time comes with the first line that carries one.
    appendEpoch(0, 0, FixQuality::NoFix, -1);
    scanner.m_epoch = 0;
    m_checkpoints.append(Checkpoint());

    QByteArray buffer;
    int scanFrom = 0;
    bool droppingLongLine = false;
    const auto onLine = [&scanner](const char *line, int length) { scanner.takeLine(line, length); };
    const auto onDropped = [&scanner](const char *, int length, bool) { scanner.m_offset += length; };
    QByteArray chunk(int(kReadBytes), Qt::Uninitialized);
    qint64 total = 0;
    for (;;) {
        if (cancel && cancel->load(std::memory_order_relaxed)) {
            *this = SessionIndex();
            if (error)
                error->clear();
            return false;
        }
        const qint64 read = device.read(chunk.data(), chunk.size());
        if (read < 0) {
            if (error)
                *error = device.errorString();
            *this = SessionIndex();
            return false;
        }
        if (read == 0)
            break;
        const bool first = total == 0;
        total += read;
        takeLines(buffer, scanFrom, droppingLongLine, kMaxLineBytes, QByteArray::fromRawData(chunk.constData(), int(read)),
                  onLine, onDropped);
        if (first)
            reserveFor(device, total);
        if (progress)
            progress(total);
    }
    scanner.finish();
    // A kind is found to have stopped some epochs after it did.
    std::stable_sort(m_markers.begin(), m_markers.end(),
                     [](const SessionMarker &a, const SessionMarker &b) { return a.epoch < b.epoch; });
    m_fileSize = total;
    if (!m_hasReceiverTime)
        m_times[0] = 0;
    m_markers.squeeze();
    m_memory.squeeze();
    return true;
}
