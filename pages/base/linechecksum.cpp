#include "linechecksum.h"

#include <array>

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

// Characters outside Latin-1 count as '?', as the toolkit's Latin-1 conversion does.
inline uchar latin1Byte(QChar c)
{
    return c.unicode() > 0xff ? uchar('?') : uchar(c.unicode());
}

} // namespace

quint32 receiverCrc32(const char *data, int size, quint32 crc)
{
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
    const QChar *body = line.constData();
    quint32 computed = 0;
    for (int i = 1; i < star; ++i) {
        const uchar b = latin1Byte(body[i]);
        if (b == 0)
            break;
        computed = isSentence ? (computed ^ b)
                              : kCrcTable[(computed ^ b) & 0xff] ^ (computed >> 8);
    }

    // The toolkit's conversion: blanks around the digits, any number of digits and
    // either case are fine; anything else fails.
    bool ok = false;
    const uint received = QStringRef(&line, star + 1, line.size() - star - 1).toUInt(&ok, 16);
    return ok && received == computed;
}
