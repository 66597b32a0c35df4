#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace rxsim {

// Which console page takes a line. The console offers every line to the pages of
// its product mode in catalogue order and the first page that accepts it takes it;
// a page that is not on screen accepts on its header test and checksum alone. These
// are the pages' own recognition rules, oddities included, restated here so that the
// simulator can say where each of its lines belongs and a test can hold the console
// to it.

// The tree labels of a mode's pages, in the order they are offered lines. Modes 4
// and 5 have no text pages: their labels are the NMEA kinds the binary decoder
// reports.
QStringList pageLabels(int mode);

// The label of the page that takes this line (with its "\r\n") in this mode when no
// page is on screen (the headless console), or an empty string when none does.
QString pageForLine(int mode, const QByteArray &line);

// The console's line check: "$" lines carry the XOR of the bytes between "$" and
// the first "*", "#" lines the zero-initial CRC-32 of the bytes between "#" and it;
// the rest of the line must read as that number in hexadecimal, blanks around it
// allowed.
bool lineChecksumAccepted(const QByteArray &line);

} // namespace rxsim
