// SPDX-License-Identifier: BSD-3-Clause
#include "sessiontrack.h"

#include "lineframer.h"
#include "receiverstatedata.h"

#include <QIODevice>

#include <algorithm>

namespace {

constexpr int kMaxLineBytes = 256 * 1024; // the message view's longest line
constexpr qint64 kReadBytes = 4 << 20;

// Reads [from, to) in blocks, each handed to take(bytes); false with error on a short read.
template <typename Take>
bool readRange(QIODevice &recording, qint64 from, qint64 to, QString *error, Take &&take)
{
    if (!recording.seek(from)) {
        *error = QStringLiteral("cannot seek in the recording: %1").arg(recording.errorString());
        return false;
    }
    QByteArray block;
    for (qint64 at = from; at < to;) {
        block = recording.read(std::min(kReadBytes, to - at));
        if (block.isEmpty()) {
            *error = QStringLiteral("the recording ends early at byte %1").arg(at);
            return false;
        }
        at += block.size();
        if (!take(block))
            return false;
    }
    return true;
}

TrackPoint pointOf(const FixInfo &fix, qint64 timeMs)
{
    TrackPoint point;
    point.timeMs = timeMs;
    point.lat = fix.lat;
    point.lon = fix.lon;
    point.heightMsl = fix.heightMsl;
    point.heightEllipsoid = fix.heightEllipsoid;
    point.quality = fix.quality;
    point.satellitesUsed = fix.satellitesUsed;
    point.hdop = fix.hdop;
    point.sdLat = fix.sdLat;
    point.sdLon = fix.sdLon;
    point.sdHeight = fix.sdHeight;
    return point;
}

} // namespace

bool collectTrack(QIODevice &recording, const SessionIndex &index, int first, int last, QVector<TrackPoint> *points,
                  QString *error)
{
    points->clear();
    if (index.epochCount() == 0 || first > last)
        return true;
    first = std::clamp(first, 0, index.epochCount() - 1);
    last = std::clamp(last, first, index.epochCount() - 1);
    ReceiverStateData state{StateSettings()};
    LineFramer framer(kMaxLineBytes);
    const auto feedState = [&](const QByteArray &bytes) {
        framer.feed(bytes, [&state](const char *line, int length) { state.takeLine(line, length); });
        return true;
    };
    const SeekPlan plan = index.planSeek(first);
    if (!readRange(recording, plan.viewsFrom, index.epochOffset(first), error, feedState))
        return false;

    // Lines are whole within an epoch: its end is reached exactly on a line end.
    int epoch = first;
    qint64 offset = index.epochOffset(first);
    quint64 positions = state.positionSamples();
    const auto closeEpochsUpTo = [&](qint64 reached) {
        while (epoch <= last && reached >= index.epochEnd(epoch)) {
            if (state.positionSamples() != positions && state.fix().hasPosition())
                points->append(pointOf(state.fix(), index.epochTimeMs(epoch)));
            positions = state.positionSamples();
            ++epoch;
        }
    };
    const auto take = [&](const QByteArray &bytes) {
        framer.feed(
            bytes,
            [&](const char *line, int length) {
                state.takeLine(line, length);
                offset += length;
                closeEpochsUpTo(offset);
            },
            [&](const char *, int length, bool) { offset += length; });
        return true;
    };
    if (!readRange(recording, index.epochOffset(first), index.epochEnd(last), error, take))
        return false;
    // The last line of a recording may lack its line end.
    closeEpochsUpTo(index.epochEnd(last));
    return true;
}

bool copyEpochs(QIODevice &recording, const SessionIndex &index, int first, int last, QIODevice &out, QString *error)
{
    if (index.epochCount() == 0 || first > last)
        return true;
    first = std::clamp(first, 0, index.epochCount() - 1);
    last = std::clamp(last, first, index.epochCount() - 1);
    return readRange(recording, index.epochOffset(first), index.epochEnd(last), error, [&](const QByteArray &bytes) {
        if (out.write(bytes) == bytes.size())
            return true;
        *error = QStringLiteral("cannot write: %1").arg(out.errorString());
        return false;
    });
}

bool epochSpan(const SessionIndex &index, const QString &from, const QString &to, int *first, int *last,
               QString *reason)
{
    *first = 0;
    *last = index.epochCount() - 1;
    const auto find = [&](const QString &text, int start, qint64 *ms, bool *timeOfDayOnly) {
        if (!parseReceiverTime(text, ms, timeOfDayOnly)) {
            *reason = QStringLiteral("\"%1\" is no time: write HH:MM:SS or 2024-05-20T14:32:05").arg(text);
            return -1;
        }
        const int epoch = index.findTime(*ms, *timeOfDayOnly, start);
        if (epoch < 0)
            *reason = QStringLiteral("%1 is not in the recording").arg(text);
        return epoch;
    };
    qint64 ms = 0;
    bool timeOfDayOnly = false;
    if (!from.isEmpty() && (*first = find(from, 0, &ms, &timeOfDayOnly)) < 0)
        return false;
    if (!to.isEmpty()) {
        const int reached = find(to, *first, &ms, &timeOfDayOnly);
        if (reached < 0)
            return false;
        if (reached < *first) {
            *reason = QStringLiteral("%1 comes before %2 in the recording").arg(to, from);
            return false;
        }
        // The epoch at `to` itself belongs to the span; the first one past it does not.
        const qint64 dayMs = 86400000;
        const qint64 at = index.epochTimeMs(reached);
        const bool exact = timeOfDayOnly ? ((at % dayMs) + dayMs) % dayMs == ms : at == ms;
        *last = exact || reached == *first ? reached : reached - 1;
    }
    return true;
}

bool exportSession(QIODevice &recording, const SessionIndex &index, const QString &format, const QString &from,
                   const QString &to, const QString &name, QIODevice &out, QString *error)
{
    TrackFormat trackFormat = TrackFormat::Csv;
    const bool raw = format.compare(QLatin1String("raw"), Qt::CaseInsensitive) == 0;
    if (!raw && !parseTrackFormat(format, &trackFormat)) {
        *error = QStringLiteral("unknown export format \"%1\" (csv, gpx, kml or raw)").arg(format);
        return false;
    }
    int first = 0, last = 0;
    if (!epochSpan(index, from, to, &first, &last, error))
        return false;
    if (raw)
        return copyEpochs(recording, index, first, last, out, error);
    QVector<TrackPoint> points;
    return collectTrack(recording, index, first, last, &points, error)
        && writeTrack(out, trackFormat, points, name, error);
}
