// SPDX-License-Identifier: BSD-3-Clause
#include "lineframe.h"

#include "linechecksum.h"

namespace rxsim {

quint8 xorChecksum(const char *data, int size)
{
    quint8 sum = 0;
    for (int i = 0; i < size; ++i)
        sum ^= quint8(data[i]);
    return sum;
}

QByteArray frameSentence(const QByteArray &body)
{
    QByteArray line;
    line.reserve(body.size() + 6);
    line += '$';
    line += body;
    line += '*';
    line += QByteArray::number(xorChecksum(body.constData(), body.size()), 16).rightJustified(2, '0').toUpper();
    line += "\r\n";
    return line;
}

QByteArray frameLog(const QByteArray &body)
{
    QByteArray line;
    line.reserve(body.size() + 12);
    line += '#';
    line += body;
    line += '*';
    line += QByteArray::number(receiverCrc32(body.constData(), body.size()), 16).rightJustified(8, '0');
    line += "\r\n";
    return line;
}

Fields &Fields::operator<<(const QByteArray &field)
{
    if (m_count++)
        m_text += ',';
    m_text += field;
    return *this;
}

QByteArray fixed(double value, int decimals)
{
    QByteArray text = QByteArray::number(value, 'f', decimals);
    if (text.startsWith('-') && text.count('0') == text.size() - 1 - (decimals > 0 ? 1 : 0))
        text.remove(0, 1);
    return text;
}

QByteArray scientific(double value, int digits)
{
    return QByteArray::number(value, 'e', digits);
}

QByteArray padded(qint64 value, int width)
{
    return QByteArray::number(value).rightJustified(width, '0');
}

} // namespace rxsim
