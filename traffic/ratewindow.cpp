// SPDX-License-Identifier: BSD-3-Clause
#include "ratewindow.h"

#include <algorithm>
#include <limits>

namespace {

// Rounded down also before 1970; ms / 100 leaves room to subtract two slots.
qint64 slotOf(qint64 ms)
{
    return ms / RateWindow::slotMs - (ms % RateWindow::slotMs < 0 ? 1 : 0);
}

int positionOf(qint64 slot, int count)
{
    return int(((slot % count) + count) % count);
}

} // namespace

void RateWindow::add(qint64 ms, quint32 amount)
{
    const qint64 slot = slotOf(ms);
    if (m_empty || slot > m_newestSlot) {
        const qint64 cleared = m_empty ? slotCount : std::min<qint64>(slot - m_newestSlot, slotCount);
        for (qint64 i = 0; i < cleared; ++i)
            m_counts[positionOf(slot - i, slotCount)] = 0;
        m_newestSlot = slot;
        m_empty = false;
    } else if (m_newestSlot - slot >= slotCount) {
        return;
    }
    quint32 &count = m_counts[positionOf(slot, slotCount)];
    count = amount > std::numeric_limits<quint32>::max() - count ? std::numeric_limits<quint32>::max() : count + amount;
}

double RateWindow::perSecond(qint64 nowMs) const
{
    if (m_empty)
        return 0;
    const qint64 nowSlot = slotOf(nowMs);
    quint64 total = 0;
    for (qint64 slot = m_newestSlot - slotCount + 1; slot <= m_newestSlot; ++slot) {
        if (slot <= nowSlot && nowSlot - slot < slotCount)
            total += m_counts[positionOf(slot, slotCount)];
    }
    return double(total) * 1000.0 / double(windowMs);
}
