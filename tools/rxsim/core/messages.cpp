// SPDX-License-Identifier: BSD-3-Clause
#include "messages.h"

namespace rxsim {

MessageWriter::MessageWriter(const Epoch &epoch, quint64 seed, const LineSink &sink)
    : m_epoch(epoch)
    , m_seed(seed)
    , m_sink(sink)
{
}

void MessageWriter::sentence(const char *address, const Fields &fields)
{
    m_sink(frameSentence(QByteArray(address) + ',' + fields.text()));
}

void MessageWriter::log(const char *name, const Fields &fields, int sequence)
{
    // Port, sequence, idle time, time status, week, seconds, receiver status,
    // reserved word, software build. None of it may read "GPS" or "SBAS": the
    // satellite visibility page looks for those words anywhere in a line.
    const double idle = 45.0 + 30.0 * hashUniform(m_seed, quint64(m_epoch.elapsedMs), 99);
    QByteArray body = name;
    body += "A,COM1,";
    body += QByteArray::number(sequence);
    body += ',';
    body += fixed(idle, 1);
    body += ",FINESTEERING,";
    body += QByteArray::number(m_epoch.gpsWeek);
    body += ',';
    body += fixed(m_epoch.gpsSecondsOfWeek, 3);
    body += ",02000000,b1f6,16248;";
    body += fields.text();
    m_sink(frameLog(body));
}

const QVector<MessageKind> &messageKinds()
{
    static const QVector<MessageKind> kinds = [] {
        QVector<MessageKind> all;
        addNmeaKinds(all);
        addLogKinds(all);
        addTimingKinds(all);
        return all;
    }();
    return kinds;
}

} // namespace rxsim
