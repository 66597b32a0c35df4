// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receivertypes.h"

// The signals a satellite transmits, named once for every source: the NMEA 4.11
// signal id of the satellites-in-view sentences and the signal type of the maker's
// tracking status word lead to the same number for the same signal, so a signal
// reported by both is one signal. The numbers are only compared and named; they
// mean nothing outside this file.

// The signal of a satellite of `system` with NMEA signal id `nmeaSignalId` (1-15).
int nmeaSignal(GnssSystem system, int nmeaSignalId);
// The signal of a tracking status word's system, signal type (bits 21-25) and bit 26.
int trackedSignal(GnssSystem system, int signalType, bool l2cFlag);
// The signal a receiver reports when it does not say which: the system's open
// signal on its first frequency (L1 C/A, G1 C/A, E1, B1I, ...).
int primarySignal(GnssSystem system);

// "L1 C/A", "L2C", "E5a", ...; a signal the table lacks keeps its number in its
// name ("signal id 9", "signal type 30") so that different unknown signals stay apart.
QString signalName(int signal);

// The system of the tracking status word's system field (bits 16-18).
GnssSystem trackingStatusSystem(int systemField);
