// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace rxsim {

// Which console page takes a line: the console's own route table (routes/), so that
// the simulator can say where each of its lines belongs and a test can hold the
// console to it.

// The tree labels of a mode's pages, in the order they are offered lines. Modes 4
// and 5 have no text pages: their labels are the NMEA kinds the binary decoder
// reports.
QStringList pageLabels(int mode);

// The label of the page that takes this line (with its "\r\n") in this mode when no
// page is on screen (the headless console), or an empty string when none does.
QString pageForLine(int mode, const QByteArray &line);

} // namespace rxsim
