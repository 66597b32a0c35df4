// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "basestation.h"
#include "correctioninput.h"
#include "faults.h"
#include "receiver.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

namespace rxsim {

struct SimulatorSettings
{
    int mode = 2; // product mode: 0, 1, 2, 4, 5 or 7
    quint64 seed = 1;
    QDateTime startUtc = QDateTime(QDate(2024, 5, 20), QTime(2, 0), Qt::UTC);
    PlatformSettings platform;
    QHash<QString, int> periodsMs; // by message name; 0 stops a message
    FaultSettings faults;
    // Send RTCM 3 as a base station at the platform's centre instead of the mode's
    // messages: 1005 and MSM4 of GPS, GLONASS, Galileo and BDS every second.
    bool rtcmBase = false;
    // RTK only while RTCM 3 frames come back over the link (receiveFromLink()).
    bool needsCorrections = false;
};

// What a run sent and where it belongs, per page of the mode in page order.
struct Tally
{
    QStringList labels;
    QVector<quint64> intact; // lines sent unharmed that the page takes
    QVector<quint64> taken;  // lines the console cuts from the stream that the page takes, faults included
    quint64 intactWithoutPage = 0; // unharmed lines that no page takes (HEADING logs, ...)
    quint64 refused = 0;           // lines the console cuts that no page takes
    quint64 linesSent = 0;
    quint64 linesFaulted = 0; // corrupted, truncated or without terminator
    quint64 linesMerged = 0;  // unharmed themselves, but run into by what came before
    quint64 garbageBursts = 0;
    quint64 linesCut = 0;
    quint64 bytes = 0;
    qint64 simulatedMs = 0;

    quint64 intactFor(const QString &label) const;
    quint64 takenFor(const QString &label) const;
    // A table for people: one row per page with both counts, then the totals.
    QString summary(int mode) const;
};

// The simulated receiver's output, tick by tick of simulated time. The same
// settings always give the same bytes.
class Simulator
{
public:
    static constexpr int kTickMs = 50;

    struct SentLine
    {
        QByteArray line; // as formatted, before faults
        QString page;    // the page that takes it; empty: none
        bool intact = true;
    };

    struct Schedule
    {
        QString name;
        int periodMs; // 0: not sent
        int offsetMs;
    };

    explicit Simulator(const SimulatorSettings &settings);
    ~Simulator();

    // The bytes of the next tick in delivery pieces (none when nothing is due).
    QVector<QByteArray> step();
    // Runs until the simulated time reaches durationMs and returns all bytes.
    QByteArray run(qint64 durationMs);
    qint64 nextTickMs() const { return m_tick * kTickMs; }
    // Bytes a link (any number naming it) sent back, arriving before the next tick;
    // they count with SimulatorSettings::needsCorrections.
    void receiveFromLink(quintptr link, const char *data, int size);
    void closeLink(quintptr link) { m_corrections.close(link); }
    qint64 correctionFrames() const { return m_corrections.frames(); }

    const Tally &tally() const { return m_tally; }
    const QVector<SentLine> &lastLines() const { return m_lastLines; }
    const QVector<Schedule> &schedule() const { return m_schedule; }

    static bool isValidMode(int mode);
    // The messages a mode sends, with their default periods.
    static QVector<Schedule> defaultSchedule(int mode);
    static bool isMessageName(const QString &name);
    static constexpr int kRtcmPeriodMs = 1000;

private:
    void cut(const QByteArray &bytes);

    SimulatorSettings m_settings;
    std::unique_ptr<Receiver> m_receiver;
    std::unique_ptr<BaseStation> m_base; // with rtcmBase
    CorrectionInput m_corrections;
    FaultInjector m_faults;
    QVector<Schedule> m_schedule;
    QVector<int> m_kindIndex; // into messageKinds(), parallel to m_schedule
    qint64 m_tick = 0;
    Tally m_tally;
    QVector<SentLine> m_lastLines;
    static constexpr int kLongestCountedLine = 16 << 20;
    QByteArray m_uncut; // received bytes after the last "\r\n"
    bool m_skipToLineEnd = false; // the rest of an overlong line, already counted
};

} // namespace rxsim
