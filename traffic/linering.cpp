// SPDX-License-Identifier: BSD-3-Clause
#include "linering.h"

#include <algorithm>

LineRing::LineRing(int capacity) : m_capacity(std::clamp(capacity, 1, maxCapacity)) {}

void LineRing::setCapacity(int capacity)
{
    m_capacity = std::clamp(capacity, 1, maxCapacity);
    while (m_size > m_capacity)
        dropOldest();
    straighten();
}

int LineRing::capacity() const
{
    return m_capacity;
}

void LineRing::append(LineRecord record)
{
    if (record.bytes.size() > maxRecordBytes)
        record.bytes.truncate(maxRecordBytes);
    while (m_size > 0 && (m_size >= m_capacity || m_bytes + record.bytes.size() > byteBudget))
        dropOldest();
    if (m_size == m_records.size()) {
        // Room in the storage only before the first wrap, or after lines went early.
        straighten();
        m_records.append(LineRecord());
    }
    m_bytes += record.bytes.size();
    m_records[(m_first + m_size) % m_records.size()] = std::move(record);
    ++m_size;
    ++m_appended;
}

void LineRing::clear()
{
    m_records.clear();
    m_first = 0;
    m_size = 0;
    m_appended = 0;
    m_bytes = 0;
}

int LineRing::size() const
{
    return m_size;
}

const LineRecord &LineRing::at(int index) const
{
    return m_records.at((m_first + index) % m_records.size());
}

quint64 LineRing::appendedTotal() const
{
    return m_appended;
}

void LineRing::dropOldest()
{
    LineRecord &oldest = m_records[m_first];
    m_bytes -= oldest.bytes.size();
    oldest = LineRecord();
    m_first = (m_first + 1) % m_records.size();
    --m_size;
}

void LineRing::straighten()
{
    if (m_first == 0 && m_records.size() == m_size)
        return;
    QVector<LineRecord> kept;
    kept.reserve(m_size);
    for (int i = 0; i < m_size; ++i)
        kept.append(std::move(m_records[(m_first + i) % m_records.size()]));
    m_records.swap(kept);
    m_first = 0;
}
