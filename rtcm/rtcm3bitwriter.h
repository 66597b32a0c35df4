// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QtGlobal>

// Packs bit fields most significant bit first, as RTCM 3 payloads carry them. The
// last byte is padded with zero bits.
class Rtcm3BitWriter
{
public:
    explicit Rtcm3BitWriter(int reserveBytes = 64) { m_bytes.reserve(reserveBytes); }

    // The low `bits` bits of value (1 to 64); higher bits are ignored.
    void putUnsigned(quint64 value, int bits)
    {
        for (int bit = bits - 1; bit >= 0; --bit)
            putBit((value >> bit) & 1u);
    }

    // Two's complement in `bits` bits; the caller keeps value within the field.
    void putSigned(qint64 value, int bits) { putUnsigned(quint64(value), bits); }

    void putBit(bool set)
    {
        if (m_bitCount % 8 == 0)
            m_bytes.append('\0');
        if (set)
            m_bytes[m_bitCount / 8] = char(uchar(m_bytes.at(m_bitCount / 8)) | (0x80u >> (m_bitCount % 8)));
        ++m_bitCount;
    }

    int bitCount() const { return m_bitCount; }
    const QByteArray &bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
    int m_bitCount = 0;
};
