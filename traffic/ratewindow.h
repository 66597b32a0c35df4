// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtGlobal>

#include <array>

// An amount per second over the last windowMs: counts kept per 100 ms, so memory stays
// fixed however fast the amounts come, and a rate read between two lines moves by at
// most one line per window.
class RateWindow
{
public:
    static constexpr qint64 windowMs = 10000;
    static constexpr qint64 slotMs = 100;

    // Amounts older than the window behind the newest one are left out.
    void add(qint64 ms, quint32 amount);
    // The amounts in the window that ends with nowMs' slot, per second.
    double perSecond(qint64 nowMs) const;

private:
    static constexpr int slotCount = int(windowMs / slotMs);

    std::array<quint32, slotCount> m_counts{};
    qint64 m_newestSlot = 0;
    bool m_empty = true;
};
