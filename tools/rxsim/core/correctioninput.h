// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "rtcm3framer.h"

#include <QHash>
#include <QtGlobal>

namespace rxsim {

// What a rover makes of the bytes its links send back: valid RTCM 3 frames are
// corrections, and each keeps them flowing for kHoldMs. Everything else (noise, a
// frame with a broken CRC) counts for nothing. Every link (a TCP client, the serial
// line) is cut on its own, and holds at most one unfinished frame until it closes.
class CorrectionInput
{
public:
    static constexpr qint64 kHoldMs = 5000;

    // nowMs: the simulated time the bytes arrive at.
    void feed(quintptr link, const char *data, int size, qint64 nowMs);
    void close(quintptr link) { m_framers.remove(link); }
    bool arrivingAt(qint64 nowMs) const;
    qint64 frames() const { return m_frames; }

private:
    QHash<quintptr, Rtcm3Framer> m_framers;
    qint64 m_frames = 0;
    qint64 m_lastFrameMs = -1;
};

} // namespace rxsim
