// SPDX-License-Identifier: BSD-3-Clause
#include "rtcm3framer.h"

#include <array>

namespace {

constexpr quint32 kCrc24qPolynomial = 0x1864CFB;

constexpr std::array<quint32, 256> makeCrc24qTable()
{
    std::array<quint32, 256> table{};
    for (quint32 i = 0; i < 256; ++i) {
        quint32 crc = i << 16;
        for (int bit = 0; bit < 8; ++bit) {
            crc <<= 1;
            if (crc & 0x1000000)
                crc ^= kCrc24qPolynomial;
        }
        table[i] = crc & 0xFFFFFF;
    }
    return table;
}

constexpr std::array<quint32, 256> kCrc24qTable = makeCrc24qTable();

} // namespace

quint32 crc24q(const uchar *data, int size)
{
    quint32 crc = 0;
    for (int i = 0; i < size; ++i)
        crc = ((crc << 8) & 0xFFFFFF) ^ kCrc24qTable[(crc >> 16) ^ data[i]];
    return crc;
}

int Rtcm3Framer::frameSize(const uchar *p, int available)
{
    if (available < kHeaderSize)
        return 0;
    const int payload = (int(p[1] & 0x03) << 8) | p[2];
    return kHeaderSize + payload + kCrcSize;
}

void Rtcm3Framer::reset()
{
    m_pending.clear();
    m_frames = m_crcFailures = m_skippedBytes = 0;
}

int rtcm3MessageType(const uchar *frame, int frameSize)
{
    if (frameSize < Rtcm3Framer::kHeaderSize + 2 + Rtcm3Framer::kCrcSize)
        return 0;
    return (int(frame[3]) << 4) | (frame[4] >> 4);
}
