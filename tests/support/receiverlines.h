// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QString>

// Builds receiver lines with checksums computed here, independently of the library:
// a bitwise CRC-32 and a plain XOR, so a fault in the library's tables shows.
namespace ReceiverLines {

// "$" + body + "*" + two upper-case hex digits + "\r\n".
QByteArray sentence(const QByteArray &body);
// "#" + body + "*" + eight lower-case hex digits of the zero-initial CRC + "\r\n".
QByteArray log(const QByteArray &body);
// A "#" log whose checksum is computed the common way (0xFFFFFFFF initial value and
// final inversion), which the receiver's framing must refuse.
QByteArray logWithStandardCrc(const QByteArray &body);

// "NAME,COM1,0,78.5,FINESTEERING,2310,345600.000,02000000,b1f6,16248;" + fields.
QByteArray logBody(const QByteArray &name, const QByteArray &fields);
// Comma-joined "v0,v1,..." of count fields, each "<prefix><index>".
QByteArray numberedFields(int count, const QByteArray &prefix = "f");

quint32 bitwiseCrc32(const QByteArray &bytes, quint32 initial, bool invert);
quint8 xorChecksum(const QByteArray &bytes);

} // namespace ReceiverLines
