// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receiverconnection.h"
#include "sessionindex.h"

#include <QElapsedTimer>
#include <QTimer>

#include <atomic>
#include <memory>

class QFile;
class QThread;
struct RecordingScan;

// A recorded session played like a video. Opening it starts a scan in the background
// that builds the index of its epochs; meanwhile it plays from the start at a byte
// pace. With the index it plays epoch by epoch at the receiver's own pace times the
// speed, steps one epoch at a time and seeks: a seek tells the console through
// rebuilt() what to replay so that its pages and views show what playing from the
// start to there would show.
class RecordingPlayer : public ReceiverConnection
{
    Q_OBJECT
public:
    // The bytes per second played before the index is ready, at speed 1.
    explicit RecordingPlayer(QString path, int bytesPerSecond = 11520);
    ~RecordingPlayer() override;

    void open() override;
    void close() override;
    bool canPause() const override { return true; }
    void setPaused(bool paused) override;
    // From the start again.
    void restart() override;

    QString path() const { return m_path; }
    bool isPlaying() const { return m_timer.isActive(); }
    // Null until the scan has finished.
    const SessionIndex *index() const { return m_index.get(); }
    bool isIndexing() const { return m_scan != nullptr; }
    void cancelIndexing();
    // The last epoch played to its end; -1 before the first.
    int position() const { return m_position; }
    // 1 is the receiver's pace; 0 is as fast as possible.
    void setSpeed(double factor);
    double speed() const { return m_speed; }
    // Plays to the end of the epoch (a fresh replay, see rebuilt()); false without an index.
    bool seek(int epoch);
    // Forward: plays the next epochs and pauses; back: seeks.
    bool step(int epochs);
    // The epoch of a typed receiver time ("14:32:05", "2024-05-20T14:32:05"), searched
    // from the current position on and then from the start; -1 and a reason if none.
    int findTime(const QString &text, QString *reason) const;

    static constexpr int tickMs = 20;
    // Gaps in receiver time longer than this play as this long.
    static constexpr qint64 longestPauseMs = 2000;

signals:
    void indexProgress(qint64 bytesRead, qint64 total);
    // index() is ready (or, after a failure or a cancel, stays null and text says why).
    void indexFinished(bool ready, const QString &text);
    void positionChanged(int epoch);
    void playingChanged(bool playing);
    // Forget the receiver, then give the pages rebuild.pageMemory and rebuild.both and the
    // receiver state rebuild.viewsOnly and rebuild.both. Playing goes on from there.
    void rebuilt(const SeekRebuild &rebuild);

private:
    void tick();
    void playEpochs(qint64 budgetBytes);
    void playBytes(qint64 count);
    void emitUpTo(qint64 end);
    void scanFinished();
    void finishIfAtEnd();
    void stopScan();
    void setPlaying(bool playing);

    QString m_path;
    int m_bytesPerSecond;
    std::unique_ptr<QFile> m_file;
    qint64 m_fileSize = 0;
    std::unique_ptr<SessionIndex> m_index;
    QThread *m_scan = nullptr;
    std::shared_ptr<RecordingScan> m_scanJob;
    QTimer m_progressTimer;
    QTimer m_timer;
    QElapsedTimer m_sinceTick;
    double m_speed = 1.0;
    qint64 m_offset = 0;  // the next byte to play
    int m_position = -1;
    // Play time (receiver ms times the speed since playing began) and when the next
    // epoch is due on it.
    double m_playheadMs = 0;
    double m_nextDueMs = 0;
};
