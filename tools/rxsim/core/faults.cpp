// SPDX-License-Identifier: BSD-3-Clause
#include "faults.h"

#include <cctype>

namespace rxsim {

FaultInjector::FaultInjector(const FaultSettings &settings, quint64 seed)
    : m_settings(settings)
    , m_random(hashMix(seed, 0xFA017))
{
}

FaultInjector::Fault FaultInjector::send(const QByteArray &line, QByteArray &out)
{
    // A line runs into what came before it when the line before lost its "\r\n"...
    bool merged = m_pendingMerge;
    m_pendingMerge = false;

    if (m_settings.garbage > 0.0 && m_random.uniform() < m_settings.garbage) {
        ++m_garbageBursts;
        const int size = 1 + m_random.below(64);
        for (int i = 0; i < size; ++i) {
            char c;
            do {
                c = char(m_random.below(256));
                // Never a line end inside the burst, and never a frame character to
                // start it: noise does not fake the start of a line.
            } while (c == '\r' || c == '\n' || (i == 0 && (c == '$' || c == '#')));
            out += c;
        }
        // ...or when a burst of garbage before it has none; half of the bursts end
        // in a line end of their own.
        merged = m_random.below(2) != 0;
        if (!merged)
            out += "\r\n";
    }
    m_lastMerged = merged;

    const double u = m_random.uniform();
    const int star = line.lastIndexOf('*');
    const int end = line.size() - 2; // before "\r\n"
    if (star > 0 && u < m_settings.corruptChecksum) {
        // Another hex digit of the same case: the checksum no longer matches.
        const char *digits = line.startsWith('$') ? "0123456789ABCDEF" : "0123456789abcdef";
        QByteArray faulty = line;
        const int at = star + 1 + m_random.below(end - star - 1);
        char replacement;
        do {
            replacement = digits[m_random.below(16)];
        } while (std::tolower(uchar(replacement)) == std::tolower(uchar(faulty.at(at))));
        faulty[at] = replacement;
        out += faulty;
        return Fault::CorruptChecksum;
    }
    if (star > 1 && u < m_settings.corruptChecksum + m_settings.truncate) {
        // Cut before the "*": the line keeps no checksum at all.
        out += line.left(1 + m_random.below(star - 1));
        out += "\r\n";
        return Fault::Truncated;
    }
    if (u < m_settings.corruptChecksum + m_settings.truncate + m_settings.dropTerminator) {
        out += line.left(end);
        m_pendingMerge = true;
        return Fault::NoTerminator;
    }
    out += line;
    return Fault::None;
}

QVector<QByteArray> FaultInjector::split(const QByteArray &bytes)
{
    QVector<QByteArray> chunks;
    if (m_settings.splitMaxBytes <= 0) {
        if (!bytes.isEmpty())
            chunks << bytes;
        return chunks;
    }
    for (int at = 0; at < bytes.size();) {
        const int size = 1 + m_random.below(m_settings.splitMaxBytes);
        chunks << bytes.mid(at, size);
        at += size;
    }
    return chunks;
}

} // namespace rxsim
