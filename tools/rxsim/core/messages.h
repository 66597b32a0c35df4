// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "lineframe.h"
#include "receiver.h"

#include <QByteArray>
#include <QVector>
#include <functional>

namespace rxsim {

// Formats the messages of one instant from the receiver's state and hands each
// finished line (with its "\r\n") on.
class MessageWriter
{
public:
    using LineSink = std::function<void(const QByteArray &line)>;

    MessageWriter(const Epoch &epoch, quint64 seed, const LineSink &sink);

    const Epoch &epoch() const { return m_epoch; }
    quint64 seed() const { return m_seed; }

    // "$" + address + "," + fields, framed.
    void sentence(const char *address, const Fields &fields);
    // "#" + name + "A," + the log header + ";" + fields, framed; sequence counts the
    // logs still to come in a group.
    void log(const char *name, const Fields &fields, int sequence = 0);

private:
    const Epoch &m_epoch;
    quint64 m_seed;
    const LineSink &m_sink;
};

// One message the simulator can send: its name (as --rate knows it), default period,
// phase within the period, the product modes that send it and its formatter.
struct MessageKind
{
    const char *name;
    int periodMs;
    int offsetMs;
    quint32 modes; // bit n: sent in product mode n
    void (*write)(MessageWriter &);
};

const QVector<MessageKind> &messageKinds();

// The kinds of each family, appended in sending order.
void addNmeaKinds(QVector<MessageKind> &kinds);
void addLogKinds(QVector<MessageKind> &kinds);
void addTimingKinds(QVector<MessageKind> &kinds);

// Product mode sets.
constexpr quint32 modeBit(int mode) { return 1u << mode; }
constexpr quint32 kNmeaPageModes = modeBit(0) | modeBit(1) | modeBit(2) | modeBit(7);
constexpr quint32 kDecoderModes = modeBit(4) | modeBit(5);
constexpr quint32 kLogModes = modeBit(1) | modeBit(2);
constexpr quint32 kFullLogMode = modeBit(2);
constexpr quint32 kTimingMode = modeBit(7);

} // namespace rxsim
