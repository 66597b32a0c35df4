// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "lineframer.h"
#include "receivertypes.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <memory>

class ReceiverStateData;

// One consistent, typed picture of the receiver, kept from the lines it sends: the
// fix, the satellites with their signals, position statistics and a short history.
// Fed the same bytes as the message view (it cuts the same lines), usable without a
// display. Which sentence or log fills what, and which wins when two disagree, is
// written down once, in receiverstate.cpp.
class ReceiverState : public QObject
{
    Q_OBJECT
public:
    explicit ReceiverState(QObject *parent = nullptr);
    ~ReceiverState() override;

    // Received bytes, in any chunks.
    void feed(const QByteArray &bytes);
    // One whole line, with or without its "\r\n".
    void feedLine(QStringView line);
    // Forgets everything (a new receiver, a seek in a recording).
    void reset();
    // Starts the since-reset statistics again; the window keeps its samples.
    void resetStatistics();

    // The statistics window (default 600 s) and how long trails and history reach back.
    void setStatisticsWindowSeconds(int seconds);
    int statisticsWindowSeconds() const;
    void setHistorySeconds(int seconds);
    // Deviations and statistics are measured from this point instead of the window's
    // mean; clearReferencePoint() goes back to the mean.
    void setReferencePoint(double lat, double lon, double height);
    void clearReferencePoint();

    // Satellites and signals not refreshed for this long disappear.
    static constexpr qint64 staleAfterMs = 10000;
    // changed() comes at most this often, however many lines arrive.
    static constexpr int notifyIntervalMs = 250;

    const FixInfo &fix() const;
    // The last intact GGA sentence as the receiver sent it (without "\r\n"), or empty.
    QByteArray latestGga() const;
    // Live satellites (stale ones removed), by system and number.
    QVector<SatelliteInfo> satellites() const;
    // Everything at once; the statistics are computed here, so call it when drawing.
    ReceiverSnapshot snapshot() const;
    // The state's clock: the receiver's time when its lines carry one, else the time
    // since the state was made.
    qint64 nowMs() const;
    quint64 linesUsed() const;

signals:
    // Something changed; coalesced to at most one per notifyIntervalMs.
    void changed();

private:
    void noteChange();

    std::unique_ptr<ReceiverStateData> d;
    LineFramer m_framer;
    QTimer m_notifyTimer;
    bool m_changePending = false;
};
