// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>

struct FixInfo;

// A $GPGGA line with checksum and "\r\n" describing the fix, for casters that want the
// rover's position when the receiver's own GGA is not at hand. Empty when the fix has no
// position. The time is the fix's, or now when the fix has none.
QByteArray ggaFromFix(const FixInfo &fix);
