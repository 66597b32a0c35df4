// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receiverlines.h"

#include <QByteArray>

// One second of a multi-system NMEA receiver's output, as a receiver in the binary
// modes sends it: the sentences of the binary modes' kinds (GBS excepted), a text
// sentence of another kind, and a burst of binary message bytes between them.
// `second` goes into every time field, so the records of two epochs differ.
inline QByteArray nmeaEpoch(int second)
{
    using ReceiverLines::sentence;
    const QByteArray time = "0812" + QByteArray::number(second % 60).rightJustified(2, '0') + ".00";
    QByteArray epoch;
    epoch += sentence("GPGGA," + time + ",3110.4693,N,12123.2546,E,4,18,0.7,12.5,M,9.8,M,1.0,0001");
    epoch += sentence("GNRMC," + time + ",A,3110.4693,N,12123.2546,E,0.02,251.3,150324,,,R,V");
    epoch += QByteArray("\xaa\x44\x12\x1c\x24\x00\x0a\x0d\x24\x47\x50\xff", 12);
    epoch += sentence("GNGSA,A,3,02,05,12,15,18,25,29,,,,,,1.2,0.7,1.0,1");
    epoch += sentence("GNGSA,A,3,65,71,72,,,,,,,,,,1.2,0.7,1.0,2");
    epoch += sentence("GPGSV,2,1,05,02,45,120,44,05,30,060,40,12,70,300,47,15,12,200,35,1");
    epoch += sentence("GPGSV,2,2,05,18,25,010,38,1");
    epoch += sentence("GLGSV,1,1,03,65,40,100,42,71,22,240,36,72,60,330,45,1");
    epoch += sentence("GNVTG,251.3,T,,M,0.02,N,0.04,K,D");
    epoch += sentence("GNZDA," + time + ",15,03,2024,00,00");
    epoch += sentence("GPTXT,01,01,02,ANTENNA OK");
    return epoch;
}
