// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

// Accepts a receiver line ("$...*hh\r\n" NMEA-style or "#...;...*hhhhhhhh\r\n" log)
// when the hexadecimal text after the first '*' equals the checksum of the bytes
// between the frame character and that '*': an 8-bit XOR for '$' lines, for '#'
// lines the receiver's CRC-32, which starts at zero and is not inverted at the end.
bool checkLineChecksum(QString line);
// The same rule on the bytes of a line as they arrived (the message view reads them as
// UTF-8), without building a string for a plain ASCII line.
bool checkLineChecksumBytes(const char *line, int length);

// The receiver's CRC-32 (reflected polynomial 0xEDB88320, zero initial value, no
// final XOR) of a byte run.
quint32 receiverCrc32(const char *data, int size);
