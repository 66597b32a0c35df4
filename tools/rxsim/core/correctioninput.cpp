// SPDX-License-Identifier: BSD-3-Clause
#include "correctioninput.h"

namespace rxsim {

void CorrectionInput::feed(quintptr link, const char *data, int size, qint64 nowMs)
{
    m_framers[link].feed(data, size, [this, nowMs](const uchar *, int) {
        ++m_frames;
        m_lastFrameMs = nowMs;
    });
}

bool CorrectionInput::arrivingAt(qint64 nowMs) const
{
    return m_lastFrameMs >= 0 && nowMs - m_lastFrameMs < kHoldMs;
}

} // namespace rxsim
