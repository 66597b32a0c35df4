// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtGlobal>

// Reads the bit fields of an RTCM 3 payload, most significant bit first. A read that
// would run past the payload reads nothing, returns 0 and leaves the reader failed, so
// a decoder can read a whole header and look at failed() once.
class Rtcm3BitReader
{
public:
    Rtcm3BitReader(const uchar *data, int size) : m_data(data), m_bitCount(qint64(qMax(size, 0)) * 8) {}

    // count from 0 to 64; more fails.
    quint64 readUnsigned(int count)
    {
        if (count > 64 || !claim(count))
            return fail();
        quint64 value = 0;
        for (int i = 0; i < count; ++i, ++m_position)
            value = value << 1 | ((m_data[m_position >> 3] >> (7 - (m_position & 7))) & 1u);
        return value;
    }

    // Two's complement over count bits, count from 1 to 64.
    qint64 readSigned(int count)
    {
        const quint64 value = readUnsigned(count);
        if (count <= 0 || count >= 64)
            return qint64(value);
        const quint64 signBit = quint64(1) << (count - 1);
        return qint64(value ^ signBit) - qint64(signBit);
    }

    void skip(int count)
    {
        if (claim(count))
            m_position += count;
    }

    bool failed() const { return m_failed; }
    qint64 remainingBits() const { return m_failed ? 0 : m_bitCount - m_position; }

private:
    bool claim(int count)
    {
        if (m_failed || count < 0 || count > m_bitCount - m_position)
            m_failed = true;
        return !m_failed;
    }

    quint64 fail()
    {
        m_failed = true;
        return 0;
    }

    const uchar *m_data;
    qint64 m_bitCount;
    qint64 m_position = 0;
    bool m_failed = false;
};
