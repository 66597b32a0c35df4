// SPDX-License-Identifier: BSD-3-Clause
#include "trackingstatus.h"

namespace {

struct SignalName
{
    int system;
    int signal;
    const char *name;
};

// The receiver's names as its tools have always shown them: "GLO_E2C" (not L2C) and
// the mixed case of "BDS_B2a" against "BDS_B2B" are kept on purpose.
const SignalName kSignalNames[] = {
    {0, 0, "GPS_L1 C/A"}, {0, 3, "GPS_L1C pilot"}, {0, 6, "GPS_L5 data"}, {0, 9, "GPS_L2P(Y)"},
    {0, 11, "GPS_L1C data"}, {0, 14, "GPS_L5 pilot"}, {0, 17, "GPS_L2C"},
    {1, 0, "GLO_L1C"}, {1, 5, "GLO_E2C"}, {1, 6, "GLO_G3I"}, {1, 7, "GLO_G3Q"},
    {2, 0, "SBAS_L1"}, {2, 1, "SBAS_L5I"}, {2, 6, "SBAS_L5I"},
    {3, 1, "GAL_E1B"}, {3, 2, "GAL_E1C"}, {3, 12, "GAL_E5A pilot"}, {3, 18, "GAL_E5A pilot"},
    {3, 17, "GAL_E5B pilot"}, {3, 22, "GAL_E5B pilot"},
    {4, 0, "BDS_B1I"}, {4, 4, "BDS_B1Q"}, {4, 5, "BDS_B2Q"}, {4, 6, "BDS_B3Q"}, {4, 8, "BDS_B1C"},
    {4, 23, "BDS_B1C"}, {4, 12, "BDS_B2a"}, {4, 28, "BDS_B2a"}, {4, 13, "BDS_B2B"}, {4, 17, "BDS_B2I"},
    {4, 21, "BDS_B3I"},
    {5, 0, "QZSS_L1"}, {5, 3, "QZSS_L1C pilot"}, {5, 6, "QZSS_L5 data"}, {5, 9, "QZSS_L2P(Y)"},
    {5, 11, "QZSS_L1C data"}, {5, 14, "QZSS_L5 pilot"}, {5, 17, "QZSS_L2C"}, {5, 27, "QZSS_L2C"},
};

const int kGps = 0;
const int kQzss = 5;
const int kNavic = 6;
const int kL2Signal = 9;

} // namespace

QString trackingStatusSignalName(int status)
{
    // Only the masked bits matter, so the word is taken unsigned.
    const quint32 word = quint32(status);
    const int system = int((word >> 16) & 7u);
    const int signal = int((word >> 21) & 31u);
    const bool l2cFlag = (word >> 26) & 1u;

    // NAVIC names every signal other than its L5 values L1: a catch-all on purpose.
    if (system == kNavic)
        return QLatin1String(signal == 6 || signal == 14 ? "NAVIC_L5" : "NAVIC_L1");
    // Bit 26 is consulted for this one signal value only; the plain L2C rows ignore it.
    if (signal == kL2Signal && l2cFlag && (system == kGps || system == kQzss))
        return QLatin1String(system == kGps ? "GPS_L2C" : "QZSS_L2C");
    for (const SignalName &entry : kSignalNames) {
        if (entry.system == system && entry.signal == signal)
            return QLatin1String(entry.name);
    }
    return QString();
}
