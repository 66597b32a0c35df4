// SPDX-License-Identifier: BSD-3-Clause
#include "receiverlines.h"

namespace ReceiverLines {

quint32 bitwiseCrc32(const QByteArray &bytes, quint32 initial, bool invert)
{
    quint32 crc = initial;
    for (char ch : bytes) {
        crc ^= quint8(ch);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    return invert ? ~crc : crc;
}

quint8 xorChecksum(const QByteArray &bytes)
{
    quint8 sum = 0;
    for (char ch : bytes)
        sum ^= quint8(ch);
    return sum;
}

QByteArray sentence(const QByteArray &body)
{
    return "$" + body + "*" + QByteArray::number(xorChecksum(body), 16).rightJustified(2, '0').toUpper() + "\r\n";
}

QByteArray log(const QByteArray &body)
{
    return "#" + body + "*" + QByteArray::number(bitwiseCrc32(body, 0, false), 16).rightJustified(8, '0') + "\r\n";
}

QByteArray logWithStandardCrc(const QByteArray &body)
{
    return "#" + body + "*" + QByteArray::number(bitwiseCrc32(body, 0xFFFFFFFFu, true), 16).rightJustified(8, '0')
        + "\r\n";
}

QByteArray logBody(const QByteArray &name, const QByteArray &fields)
{
    return name + ",COM1,0,78.5,FINESTEERING,2310,345600.000,02000000,b1f6,16248;" + fields;
}

QByteArray numberedFields(int count, const QByteArray &prefix)
{
    QByteArray out;
    for (int i = 0; i < count; ++i) {
        if (i)
            out += ',';
        out += prefix + QByteArray::number(i);
    }
    return out;
}

} // namespace ReceiverLines
