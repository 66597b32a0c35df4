// SPDX-License-Identifier: BSD-3-Clause
#include "linechecksum.h"

#include <array>
#include <cstring>
#include <iterator>

namespace {

constexpr std::array<quint32, 256> makeCrcTable()
{
    std::array<quint32, 256> table{};
    for (quint32 i = 0; i < 256; ++i) {
        quint32 c = i;
        for (int bit = 0; bit < 8; ++bit)
            c = (c & 1) ? (c >> 1) ^ 0xEDB88320u : c >> 1;
        table[i] = c;
    }
    return table;
}

constexpr std::array<quint32, 256> kCrcTable = makeCrcTable();
static_assert(kCrcTable[1] == 0x77073096u && kCrcTable[2] == 0xEE0E612Cu);

// Slicing-by-4 tables: entry [k][b] is the CRC of byte b followed by k zero bytes,
// so four bytes advance the CRC with four lookups and no per-byte shifts.
constexpr std::array<std::array<quint32, 256>, 4> makeSlicingTables()
{
    std::array<std::array<quint32, 256>, 4> tables{};
    tables[0] = makeCrcTable();
    for (int k = 1; k < 4; ++k) {
        for (int b = 0; b < 256; ++b)
            tables[k][b] = (tables[k - 1][b] >> 8) ^ tables[0][tables[k - 1][b] & 0xff];
    }
    return tables;
}

constexpr auto kSlicing = makeSlicingTables();

// Characters outside Latin-1 count as '?', as the toolkit's Latin-1 conversion does.
inline uchar latin1Byte(QChar c)
{
    return c.unicode() > 0xff ? uchar('?') : uchar(c.unicode());
}

} // namespace

quint32 receiverCrc32(const char *data, int size)
{
    quint32 crc = 0;
    for (int i = 0; i < size; ++i)
        crc = kCrcTable[(crc ^ uchar(data[i])) & 0xff] ^ (crc >> 8);
    return crc;
}

bool checkLineChecksum(QString line)
{
    if (line.isEmpty())
        return false;
    const QChar frame = line.at(0);
    const bool isSentence = frame == QLatin1Char('$');
    if (!isSentence && frame != QLatin1Char('#'))
        return false;
    const int star = line.indexOf(QLatin1Char('*'));
    if (star < 0)
        return false;

    // One pass over the body; a zero byte ends the run early.
    const QChar *body = line.constData() + 1;
    const int size = star - 1;
    quint32 computed = 0;
    int i = 0;
    if (isSentence) {
        for (; i < size; ++i) {
            const uchar b = latin1Byte(body[i]);
            if (b == 0)
                break;
            computed ^= b;
        }
    } else {
        // Four characters at a time while they are plain non-zero Latin-1, which
        // receiver logs always are; anything else takes the byte loop below.
        for (; i + 4 <= size; i += 4) {
            const ushort c0 = body[i].unicode(), c1 = body[i + 1].unicode();
            const ushort c2 = body[i + 2].unicode(), c3 = body[i + 3].unicode();
            if (c0 - 1u > 0xfeu || c1 - 1u > 0xfeu || c2 - 1u > 0xfeu || c3 - 1u > 0xfeu)
                break;
            const quint32 x = computed ^ (quint32(c0) | quint32(c1) << 8 | quint32(c2) << 16 | quint32(c3) << 24);
            computed = kSlicing[3][x & 0xff] ^ kSlicing[2][(x >> 8) & 0xff] ^ kSlicing[1][(x >> 16) & 0xff]
                ^ kSlicing[0][x >> 24];
        }
        for (; i < size; ++i) {
            const uchar b = latin1Byte(body[i]);
            if (b == 0)
                break;
            computed = kCrcTable[(computed ^ b) & 0xff] ^ (computed >> 8);
        }
    }

    // The toolkit's conversion: blanks around the digits, any number of digits and
    // either case are fine; anything else fails.
    bool ok = false;
    const uint received = QStringRef(&line, star + 1, line.size() - star - 1).toUInt(&ok, 16);
    return ok && received == computed;
}

bool checkLineChecksumBytes(const char *line, int length)
{
    if (length < 1 || (line[0] != '$' && line[0] != '#'))
        return false;
    const char *star = static_cast<const char *>(memchr(line, '*', size_t(length)));
    if (!star)
        return false;
    // Bytes above 0x7f or zero would read differently once decoded: the string rule
    // decides those lines.
    quint32 computed = 0;
    const bool isSentence = line[0] == '$';
    for (const char *p = line + 1; p < star; ++p) {
        const uchar b = uchar(*p);
        if (b == 0 || b > 0x7f)
            return checkLineChecksum(QString::fromUtf8(line, length));
        computed = isSentence ? computed ^ b : kCrcTable[(computed ^ b) & 0xff] ^ (computed >> 8);
    }
    // The digits are read by the same conversion as the string rule's, from a view.
    const int tailLength = int(line + length - star - 1);
    QChar tail[32];
    if (tailLength > int(std::size(tail)))
        return checkLineChecksum(QString::fromUtf8(line, length));
    for (int i = 0; i < tailLength; ++i) {
        if (uchar(star[1 + i]) > 0x7f)
            return checkLineChecksum(QString::fromUtf8(line, length));
        tail[i] = QLatin1Char(star[1 + i]);
    }
    const QString digits = QString::fromRawData(tail, tailLength);
    bool ok = false;
    const uint received = digits.toUInt(&ok, 16);
    return ok && received == computed;
}
