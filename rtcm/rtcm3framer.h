// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QtGlobal>

// CRC-24Q over size bytes, as RTCM 3 frames carry it (polynomial 0x1864CFB, initial 0).
quint32 crc24q(const uchar *data, int size);

// Cuts RTCM 3 frames out of a byte stream: preamble 0xD3, six reserved bits, a 10-bit
// payload length, the payload and its CRC-24Q. Bytes before a preamble, and a frame
// whose CRC fails, are skipped (after a failed CRC the search resumes one byte after
// the preamble, so a frame hidden behind a false one is still found). What it holds
// between calls is at most one unfinished frame.
class Rtcm3Framer
{
public:
    static constexpr int kHeaderSize = 3;
    static constexpr int kCrcSize = 3;
    static constexpr int kMaxPayload = 1023;
    static constexpr uchar kPreamble = 0xD3;

    // Calls onFrame(const uchar *frame, int frameSize) for every frame whose CRC holds;
    // frame points at the preamble and stays valid only during the call.
    template <typename OnFrame>
    void feed(const char *data, int size, OnFrame &&onFrame);

    qint64 frames() const { return m_frames; }
    qint64 crcFailures() const { return m_crcFailures; }
    // Bytes that belonged to no valid frame: noise, false preambles, failed frames.
    qint64 skippedBytes() const { return m_skippedBytes; }
    void reset();

private:
    // How many bytes the frame starting at p needs (0 while the header is unfinished).
    static int frameSize(const uchar *p, int available);

    QByteArray m_pending;
    qint64 m_frames = 0;
    qint64 m_crcFailures = 0;
    qint64 m_skippedBytes = 0;
};

// The message number: the first 12 bits of the payload (0 for a payload too short).
int rtcm3MessageType(const uchar *frame, int frameSize);

template <typename OnFrame>
void Rtcm3Framer::feed(const char *data, int size, OnFrame &&onFrame)
{
    if (size > 0) // QByteArray::append would take a negative size as "up to the first NUL"
        m_pending.append(data, size);
    const auto *bytes = reinterpret_cast<const uchar *>(m_pending.constData());
    const int available = m_pending.size();
    int at = 0;
    while (at < available) {
        if (bytes[at] != kPreamble) {
            ++at;
            ++m_skippedBytes;
            continue;
        }
        const int needed = frameSize(bytes + at, available - at);
        if (needed == 0 || needed > available - at)
            break; // the rest of this frame is still to come
        const int body = needed - kCrcSize;
        const quint32 carried = quint32(bytes[at + body]) << 16 | quint32(bytes[at + body + 1]) << 8 | bytes[at + body + 2];
        if (crc24q(bytes + at, body) != carried) {
            ++m_crcFailures;
            ++m_skippedBytes;
            ++at;
            continue;
        }
        ++m_frames;
        onFrame(bytes + at, needed);
        at += needed;
    }
    m_pending.remove(0, at);
}
