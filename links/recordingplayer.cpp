// SPDX-License-Identifier: BSD-3-Clause
#include "recordingplayer.h"

#include <QFile>
#include <QThread>

#include <algorithm>

namespace {

// What one tick may play at most: the console stays responsive at any speed, and a
// player that falls behind catches up instead of flooding.
constexpr qint64 kTickBudgetBytes = 4 << 20;
constexpr qint64 kFastTickBytes = 256 << 10;
constexpr int kProgressIntervalMs = 100;

} // namespace

// What the scanning thread hands back; shared, so neither side outlives what it reads.
struct RecordingScan
{
    std::atomic_bool cancel{false};
    std::atomic<qint64> bytesRead{0};
    std::unique_ptr<SessionIndex> index;
    bool ok = false;
    QString error;
};

RecordingPlayer::RecordingPlayer(QString path, int bytesPerSecond)
    : ReceiverConnection(path)
    , m_path(std::move(path))
    , m_bytesPerSecond(std::max(1, bytesPerSecond))
{
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &RecordingPlayer::tick);
    m_progressTimer.setInterval(kProgressIntervalMs);
    connect(&m_progressTimer, &QTimer::timeout, this,
            [this] { emit indexProgress(m_scanJob ? m_scanJob->bytesRead.load() : 0, m_fileSize); });
}

RecordingPlayer::~RecordingPlayer()
{
    stopScan();
}

void RecordingPlayer::open()
{
    stopScan();
    m_index.reset();
    m_file = std::make_unique<QFile>(m_path);
    if (!m_file->open(QIODevice::ReadOnly)) {
        setState(State::Failed, tr("cannot open %1: %2").arg(m_path, m_file->errorString()));
        m_file.reset();
        return;
    }
    m_fileSize = m_file->size();
    m_offset = 0;
    m_position = -1;

    auto job = std::make_shared<RecordingScan>();
    m_scanJob = job;
    m_scan = QThread::create([job, path = m_path] {
        QFile file(path);
        auto index = std::make_unique<SessionIndex>();
        if (!file.open(QIODevice::ReadOnly)) {
            job->error = file.errorString();
            return;
        }
        job->ok = index->build(file, &job->cancel, [&job](qint64 read) { job->bytesRead.store(read); }, &job->error);
        if (job->ok)
            job->index = std::move(index);
    });
    // A scan stopped for a newer one may still report: only the current one counts.
    connect(m_scan, &QThread::finished, this, [this, job] {
        if (job == m_scanJob)
            scanFinished();
    });
    m_scan->start(QThread::LowPriority);
    m_progressTimer.start();
    emit indexProgress(0, m_fileSize);

    setState(State::Open, tr("replaying %1").arg(m_path));
    setPlaying(true);
}

void RecordingPlayer::scanFinished()
{
    m_progressTimer.stop();
    const std::shared_ptr<RecordingScan> job = std::move(m_scanJob);
    m_scan->deleteLater();
    m_scan = nullptr;
    if (!job->ok) {
        emit indexFinished(false, job->cancel ? tr("indexing cancelled: the recording plays from start to end")
                                              : tr("cannot index %1: %2").arg(m_path, job->error));
        return;
    }
    m_index = std::move(job->index);
    // Whatever played meanwhile ends inside an epoch, which plays on to its end.
    const int current = m_index->epochAt(m_offset);
    m_position = m_offset == m_index->epochOffset(std::max(current, 0)) ? current - 1 : current;
    m_nextDueMs = m_playheadMs;
    emit indexFinished(true, m_index->hasReceiverTime()
                                 ? tr("%n epochs", nullptr, m_index->epochCount())
                                 : tr("no receiver time in this recording: it plays by bytes"));
    emit positionChanged(m_position);
}

void RecordingPlayer::cancelIndexing()
{
    if (m_scanJob)
        m_scanJob->cancel = true;
}

void RecordingPlayer::stopScan()
{
    if (!m_scan)
        return;
    m_scanJob->cancel = true;
    m_scan->wait();
    delete m_scan;
    m_scan = nullptr;
    m_scanJob.reset();
    m_progressTimer.stop();
}

void RecordingPlayer::close()
{
    stopScan();
    setPlaying(false);
    m_file.reset();
    setState(State::Closed, tr("replay stopped"));
}

void RecordingPlayer::setPlaying(bool playing)
{
    if (playing == m_timer.isActive())
        return;
    if (playing) {
        m_sinceTick.start();
        m_timer.start(m_speed > 0 ? tickMs : 0);
    } else {
        m_timer.stop();
    }
    emit playingChanged(playing);
}

void RecordingPlayer::setPaused(bool paused)
{
    if (!m_file)
        return;
    if (!paused && m_offset >= m_fileSize)
        return;
    setPlaying(!paused);
    setState(paused ? State::Paused : State::Open,
             paused ? tr("replay of %1 paused").arg(m_path) : tr("replaying %1").arg(m_path));
}

void RecordingPlayer::restart()
{
    if (!m_file)
        return;
    emit rebuilt(SeekRebuild());
    m_offset = 0;
    m_position = -1;
    m_nextDueMs = m_playheadMs;
    emit positionChanged(m_position);
    setPaused(false);
}

void RecordingPlayer::setSpeed(double factor)
{
    m_speed = std::max(0.0, factor);
    if (m_timer.isActive())
        m_timer.start(m_speed > 0 ? tickMs : 0);
}

bool RecordingPlayer::seek(int epoch)
{
    if (!m_index || !m_file || m_index->epochCount() == 0)
        return false;
    epoch = std::clamp(epoch, 0, m_index->epochCount() - 1);
    SeekRebuild rebuild;
    QString error;
    if (!readSeekRebuild(*m_file, m_index->planSeek(epoch), &rebuild, &error)) {
        setPlaying(false);
        setState(State::Failed, error);
        return false;
    }
    emit rebuilt(rebuild);
    m_offset = rebuild.endOffset;
    m_position = epoch;
    m_nextDueMs = m_playheadMs;
    emit positionChanged(m_position);
    if (m_offset >= m_fileSize)
        finishIfAtEnd();
    else if (state() == State::Finished)
        setState(State::Paused, tr("replay of %1 paused").arg(m_path));
    return true;
}

bool RecordingPlayer::step(int epochs)
{
    if (!m_index || !m_file || epochs == 0)
        return false;
    if (epochs < 0)
        return m_position >= 0 && seek(std::max(0, m_position + epochs));
    setPaused(true);
    if (m_offset >= m_fileSize)
        return false;
    const int last = std::min(m_index->epochAt(m_offset) + epochs - 1, m_index->epochCount() - 1);
    emitUpTo(m_index->epochEnd(last));
    m_position = last;
    emit positionChanged(m_position);
    finishIfAtEnd();
    return true;
}

int RecordingPlayer::findTime(const QString &text, QString *reason) const
{
    qint64 ms = 0;
    bool timeOfDayOnly = false;
    if (!parseReceiverTime(text, &ms, &timeOfDayOnly)) {
        *reason = tr("\"%1\" is no time: write HH:MM:SS or 2024-05-20T14:32:05").arg(text);
        return -1;
    }
    if (!m_index || !m_index->hasReceiverTime()) {
        *reason = tr("the recording has no receiver time to go to");
        return -1;
    }
    const int epoch = m_index->findTime(ms, timeOfDayOnly, m_position + 1);
    if (epoch < 0)
        *reason = tr("%1 is not in the recording").arg(text.trimmed());
    return epoch;
}

void RecordingPlayer::tick()
{
    const double elapsedMs = m_sinceTick.nsecsElapsed() / 1e6;
    m_sinceTick.restart();
    if (m_index && m_index->hasReceiverTime()) {
        m_playheadMs += elapsedMs * m_speed;
        playEpochs(m_speed > 0 ? kTickBudgetBytes : kFastTickBytes);
    } else {
        playBytes(m_speed > 0 ? std::max<qint64>(1, qint64(m_bytesPerSecond * m_speed * elapsedMs / 1000.0))
                              : kFastTickBytes);
    }
    finishIfAtEnd();
}

// Whole epochs as they fall due on the play time (all of them as fast as possible),
// read and handed on at once.
void RecordingPlayer::playEpochs(qint64 budgetBytes)
{
    const int count = m_index->epochCount();
    qint64 end = m_offset;
    int epoch = m_index->epochAt(m_offset);
    while (epoch < count && end - m_offset < budgetBytes && (m_speed <= 0 || m_nextDueMs <= m_playheadMs)) {
        end = m_index->epochEnd(epoch);
        m_position = epoch;
        if (epoch + 1 < count) {
            const qint64 gap = m_index->epochTimeMs(epoch + 1) - m_index->epochTimeMs(epoch);
            m_nextDueMs += double(std::clamp<qint64>(gap, 0, longestPauseMs));
        }
        ++epoch;
    }
    // Behind by more than a tick's budget: the rest waits instead of piling up.
    m_playheadMs = std::min(m_playheadMs, m_nextDueMs + tickMs * std::max(m_speed, 1.0));
    if (end > m_offset) {
        emitUpTo(end);
        emit positionChanged(m_position);
    }
}

void RecordingPlayer::playBytes(qint64 count)
{
    emitUpTo(std::min(m_fileSize, m_offset + count));
}

void RecordingPlayer::emitUpTo(qint64 end)
{
    if (end <= m_offset || !m_file->seek(m_offset))
        return;
    const qint64 wanted = end - m_offset;
    const QByteArray bytes = m_file->read(wanted);
    // A file that shrank under the player has ended.
    m_offset = bytes.size() == wanted ? end : m_fileSize;
    if (!bytes.isEmpty())
        emit dataReceived(bytes);
}

void RecordingPlayer::finishIfAtEnd()
{
    if (m_offset < m_fileSize || state() == State::Finished)
        return;
    setPlaying(false);
    setState(State::Finished, tr("replay of %1 finished").arg(m_path));
}
