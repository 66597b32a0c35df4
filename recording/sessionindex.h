// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receivertypes.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <atomic>
#include <functional>

class QIODevice;

// A change worth a mark on a recording's timeline.
struct SessionMarker
{
    enum class Kind : quint8 {
        Quality,        // value: the new FixQuality
        SatellitesUsed, // value: the new count
        KindAppeared,   // value: the message kind's number (SessionIndex::messageKind)
        KindStopped,    // value: the message kind's number
    };
    int epoch = 0; // the first epoch with the change
    Kind kind = Kind::Quality;
    int value = 0;
};

// Where a line lies in the recording, "\r\n" included.
struct LineSpan
{
    qint64 offset = 0;
    int length = 0;
};

// What a seek replays so that the pages and the views show what a straight play from
// the start shows at the same byte.
struct SeekPlan
{
    // The pages get these lines (file order, all before pagesFrom), then the bytes
    // [pagesFrom, endOffset); the receiver state gets [viewsFrom, endOffset).
    QVector<LineSpan> pageMemory;
    qint64 pagesFrom = 0;
    qint64 viewsFrom = 0;
    qint64 endOffset = 0;
};

// The bytes of a seek, read from the recording.
struct SeekRebuild
{
    QByteArray viewsOnly;  // [viewsFrom, pagesFrom): for the receiver state alone
    QByteArray pageMemory; // the remembered lines: for the pages alone
    QByteArray both;       // [pagesFrom, endOffset): for the pages and the state
    qint64 endOffset = 0;
};
bool readSeekRebuild(QIODevice &recording, const SeekPlan &plan, SeekRebuild *rebuild, QString *error);

// A receiver time typed by a user: "HH:MM:SS[.s]" (timeOfDayOnly) or an ISO 8601 date
// and time, UTC unless it says otherwise ("2024-05-20T14:32:05", "...Z"). As ms
// (since 1970-01-01, or since midnight for a time of day); false for anything else.
bool parseReceiverTime(const QString &text, qint64 *ms, bool *timeOfDayOnly);

// The epochs of a recorded session, in file order: each begins at the first line that
// carries a receiver time other than the epoch before it (the first one at the start
// of the file), with its UTC time, fix quality and satellites used as the receiver
// state read them by the epoch's end. Checkpoints keep, for the seeks, the last line of
// each kind of message before them. Built once in one pass by build().
class SessionIndex
{
public:
    // How far back a seek replays for the pages (whole groups of lines such as a GSV
    // report or a five-second satellite list) and for the views (trails, history).
    static constexpr qint64 pageReplayMs = 10000;
    static constexpr qint64 viewReplayMs = 120000;
    // A checkpoint every 30 s of receiver time or 4 MiB of file, whichever comes first.
    static constexpr qint64 checkpointMs = 30000;
    static constexpr qint64 checkpointBytes = 4 << 20;

    // Scans the device from its current position to its end. progress gets the bytes
    // read so far now and then; a set cancel flag stops the scan (false, error empty).
    // False with an error when the device cannot be read.
    bool build(QIODevice &device, const std::atomic_bool *cancel = nullptr,
               const std::function<void(qint64 bytesRead)> &progress = {}, QString *error = nullptr);

    int epochCount() const { return m_offsets.size(); }
    qint64 epochOffset(int epoch) const { return m_offsets.at(epoch); }
    // Where the epoch's bytes end: the next epoch's offset, or the end of the file.
    qint64 epochEnd(int epoch) const;
    // UTC ms since 1970-01-01; a recording without dates counts its times of day from
    // that day. Receiver time may jump back: epochs stay in file order.
    qint64 epochTimeMs(int epoch) const { return m_baseMs + m_times.at(epoch); }
    FixQuality epochQuality(int epoch) const { return FixQuality(m_qualities.at(epoch)); }
    int epochSatellitesUsed(int epoch) const { return m_satellites.at(epoch) == 0xff ? -1 : m_satellites.at(epoch); }
    // True when the receiver sent dates (RMC, ZDA, the logs' headers), so times are UTC.
    bool hasDates() const { return m_hasDates; }
    qint64 fileSize() const { return m_fileSize; }
    // No line carried a receiver time: there is one epoch, the whole file.
    bool hasReceiverTime() const { return m_hasReceiverTime; }

    // The epoch whose bytes hold offset (the last one beginning at or before it).
    int epochAt(qint64 offset) const;
    // The epoch where receiver time reaches timeMs (the first at or past it, after one
    // short of it), searched from `from` on and then from the start; with timeOfDayOnly
    // the date is ignored. -1 when the recording never reaches it.
    int findTime(qint64 timeMs, bool timeOfDayOnly, int from = 0) const;

    const QVector<SessionMarker> &markers() const { return m_markers; }
    // The message kinds the markers name, by number ("GPGGA", "BESTPOSA").
    const QVector<QByteArray> &messageKinds() const { return m_kindNames; }

    // Playing to the end of `epoch` from a fresh start.
    SeekPlan planSeek(int epoch) const;

    // Bytes held by the index.
    qint64 memoryBytes() const;

    // For building by hand (tests of what draws or plays an index).
    void appendEpoch(qint64 offset, qint64 timeMs, FixQuality quality, int satellitesUsed);
    void appendMarker(const SessionMarker &marker) { m_markers.append(marker); }
    void setFileSize(qint64 size) { m_fileSize = size; }

private:
    friend class SessionScanner;
    struct Checkpoint
    {
        int epoch = 0;
        int memoryBegin = 0; // into m_memory
        int memoryCount = 0;
    };
    int checkpointBefore(int epoch, qint64 reachMs) const;
    void reserveFor(const QIODevice &device, qint64 bytesRead);

    // Struct of arrays: a day at 20 Hz is 1.7 million epochs.
    QVector<qint64> m_offsets;
    QVector<qint32> m_times; // ms after m_baseMs
    QVector<quint8> m_qualities;
    QVector<quint8> m_satellites; // 0xff: unknown
    qint64 m_baseMs = 0;
    bool m_hasDates = false;
    bool m_hasReceiverTime = false;
    qint64 m_fileSize = 0;
    QVector<SessionMarker> m_markers;
    QVector<QByteArray> m_kindNames;
    QVector<Checkpoint> m_checkpoints;
    QVector<LineSpan> m_memory;
};
