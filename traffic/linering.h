// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "linerecord.h"

#include <QVector>

// The last lines of the stream, oldest first, at most capacity() of them: memory stays
// flat however long the console runs. Their bytes are bounded too: a record keeps at
// most maxRecordBytes of its line, and the oldest lines go early when all the kept bytes
// would exceed byteBudget (a full ring of 100,000 lines averaging over 335 bytes).
class LineRing
{
public:
    static constexpr int defaultCapacity = 100000;
    static constexpr int maxCapacity = 10000000;
    static constexpr int maxRecordBytes = 64 * 1024;
    static constexpr qint64 byteBudget = 32 * 1024 * 1024;
    explicit LineRing(int capacity = defaultCapacity);

    // Clamped to 1 .. maxCapacity; shrinking drops the oldest lines.
    void setCapacity(int capacity);
    int capacity() const;
    // Drops the oldest line when full.
    void append(LineRecord record);
    void clear();

    int size() const;
    // 0 is the oldest line kept.
    const LineRecord &at(int index) const;
    // Lines ever appended (since clear()); the line at index i is number
    // appendedTotal() - size() + i, so a model can tell how many fell off the front.
    quint64 appendedTotal() const;

private:
    void dropOldest();
    // Leaves m_records holding just the kept lines, oldest first.
    void straighten();

    QVector<LineRecord> m_records; // grows up to the capacity, then wraps
    int m_capacity;
    qint64 m_bytes = 0;
    int m_first = 0;
    int m_size = 0;
    quint64 m_appended = 0;
};
