// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>

namespace rxsim {

// The receiver's framing: NMEA-style "$" sentences with an XOR checksum and "#"
// logs with the library's CRC-32.
quint8 xorChecksum(const char *data, int size);

// "$" + body + "*" + two upper-case hex digits + "\r\n".
QByteArray frameSentence(const QByteArray &body);
// "#" + body + "*" + eight lower-case hex digits + "\r\n".
QByteArray frameLog(const QByteArray &body);

// A comma-separated field list being built.
class Fields
{
public:
    Fields &operator<<(const QByteArray &field);
    Fields &operator<<(const char *field) { return *this << QByteArray(field); }
    Fields &operator<<(int value) { return *this << QByteArray::number(value); }
    Fields &operator<<(qint64 value) { return *this << QByteArray::number(value); }
    int count() const { return m_count; }
    const QByteArray &text() const { return m_text; }

private:
    QByteArray m_text;
    int m_count = 0;
};

// Fixed-point text; a value that rounds to zero is written without a minus sign.
QByteArray fixed(double value, int decimals);
// Scientific text as the receiver writes its broadcast parameters ("1.234567890e-08").
QByteArray scientific(double value, int digits = 9);
// Zero-padded integer.
QByteArray padded(qint64 value, int width);

} // namespace rxsim
