// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "rxsimmath.h"

#include <QByteArray>
#include <QVector>

namespace rxsim {

// What a bad cable or a noisy link does to the stream, as rates per line.
struct FaultSettings
{
    double corruptChecksum = 0.0; // a checksum digit changed
    double truncate = 0.0;        // the line cut short before its checksum, "\r\n" kept
    double dropTerminator = 0.0;  // "\r\n" lost: the line runs into the next one
    double garbage = 0.0;         // a burst of random bytes before the line
    int splitMaxBytes = 0;        // > 0: the stream is delivered in pieces of 1..N bytes

    bool any() const
    {
        return corruptChecksum > 0.0 || truncate > 0.0 || dropTerminator > 0.0 || garbage > 0.0 || splitMaxBytes > 0;
    }
};

// Applies the faults line by line with its own random numbers, so that the content
// of a run does not change when faults are switched on.
class FaultInjector
{
public:
    enum class Fault { None, CorruptChecksum, Truncated, NoTerminator };

    FaultInjector(const FaultSettings &settings, quint64 seed);

    // Appends the line as sent (with any burst of garbage before it) to out and
    // returns what was done to the line itself.
    Fault send(const QByteArray &line, QByteArray &out);
    // True when the line sent last was merged into what came before it (a lost
    // terminator or a burst of garbage without one).
    bool lastLineMerged() const { return m_lastMerged; }
    int garbageBursts() const { return m_garbageBursts; }

    // Cuts a piece of output into delivery chunks of 1..splitMaxBytes bytes (one
    // chunk when splitting is off).
    QVector<QByteArray> split(const QByteArray &bytes);

private:
    FaultSettings m_settings;
    Random m_random;
    bool m_pendingMerge = false;
    bool m_lastMerged = false;
    int m_garbageBursts = 0;
};

} // namespace rxsim
