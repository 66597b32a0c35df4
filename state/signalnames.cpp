// SPDX-License-Identifier: BSD-3-Clause
#include "signalnames.h"

#include <array>
#include <iterator>

namespace {

// Bit 26 of the tracking status, set beside the signal type where it tells L2C from
// L2P(Y): a row with it matches only words with the bit set.
constexpr int kL2cFlag = 32;
constexpr int kNone = -1;

struct SignalRow
{
    GnssSystem system;
    int nmeaSignalId;
    int trackingType;
    const char *name;
};

// Components of one signal (L2C-M and L2C-L, L5-I and L5-Q, E1-B and E1-C, data and
// pilot) share a name: receivers report one or the other, and a view shows one signal.
// A system's first row is its primary signal.
constexpr SignalRow kSignals[] = {
    {GnssSystem::GPS, 1, 0, "L1 C/A"},
    {GnssSystem::GPS, 2, kNone, "L1 P(Y)"},
    {GnssSystem::GPS, 3, kNone, "L1M"},
    {GnssSystem::GPS, 4, 9, "L2 P(Y)"},
    {GnssSystem::GPS, 5, 17, "L2C"},
    {GnssSystem::GPS, 6, 9 | kL2cFlag, "L2C"},
    {GnssSystem::GPS, 7, 6, "L5"},
    {GnssSystem::GPS, 8, 14, "L5"},
    {GnssSystem::GPS, kNone, 3, "L1C"},
    {GnssSystem::GPS, kNone, 11, "L1C"},

    {GnssSystem::GLONASS, 1, 0, "G1 C/A"},
    {GnssSystem::GLONASS, 2, kNone, "G1 P"},
    {GnssSystem::GLONASS, 3, 5, "G2 C/A"},
    {GnssSystem::GLONASS, 4, kNone, "G2 P"},
    {GnssSystem::GLONASS, kNone, 6, "G3"},
    {GnssSystem::GLONASS, kNone, 7, "G3"},

    {GnssSystem::Galileo, 7, 2, "E1"},
    {GnssSystem::Galileo, 6, 1, "E1"},
    {GnssSystem::Galileo, 1, 12, "E5a"},
    {GnssSystem::Galileo, kNone, 18, "E5a"},
    {GnssSystem::Galileo, 2, 17, "E5b"},
    {GnssSystem::Galileo, kNone, 22, "E5b"},
    {GnssSystem::Galileo, 3, kNone, "E5 AltBOC"},
    {GnssSystem::Galileo, 4, kNone, "E6"},
    {GnssSystem::Galileo, 5, kNone, "E6"},

    {GnssSystem::BDS, 1, 0, "B1I"},
    {GnssSystem::BDS, 2, 4, "B1Q"},
    {GnssSystem::BDS, 3, 8, "B1C"},
    {GnssSystem::BDS, kNone, 23, "B1C"},
    {GnssSystem::BDS, 4, kNone, "B1A"},
    {GnssSystem::BDS, 5, 12, "B2a"},
    {GnssSystem::BDS, kNone, 28, "B2a"},
    {GnssSystem::BDS, 6, 13, "B2b"},
    {GnssSystem::BDS, 7, kNone, "B2 a+b"},
    {GnssSystem::BDS, 8, 21, "B3I"},
    {GnssSystem::BDS, 9, 6, "B3Q"},
    {GnssSystem::BDS, 10, kNone, "B3A"},
    {GnssSystem::BDS, 11, 17, "B2I"},
    {GnssSystem::BDS, 12, 5, "B2Q"},

    {GnssSystem::QZSS, 1, 0, "L1 C/A"},
    {GnssSystem::QZSS, 2, 11, "L1C"},
    {GnssSystem::QZSS, 3, 3, "L1C"},
    {GnssSystem::QZSS, 4, kNone, "L1S"},
    {GnssSystem::QZSS, 5, 17, "L2C"},
    {GnssSystem::QZSS, 6, 27, "L2C"},
    {GnssSystem::QZSS, kNone, 9 | kL2cFlag, "L2C"},
    {GnssSystem::QZSS, 7, 6, "L5"},
    {GnssSystem::QZSS, 8, 14, "L5"},
    {GnssSystem::QZSS, 9, kNone, "L6D"},
    {GnssSystem::QZSS, 10, kNone, "L6E"},

    // NMEA has no SBAS system id: SBAS satellites come with GPS's signal ids.
    {GnssSystem::SBAS, 1, 0, "L1 C/A"},
    {GnssSystem::SBAS, 7, 6, "L5"},
    {GnssSystem::SBAS, 8, 1, "L5"},

    {GnssSystem::NavIC, 1, 6, "L5 SPS"},
    {GnssSystem::NavIC, kNone, 14, "L5 SPS"},
    {GnssSystem::NavIC, 2, kNone, "S SPS"},
    {GnssSystem::NavIC, 3, kNone, "L5 RS"},
    {GnssSystem::NavIC, 4, kNone, "S RS"},
    {GnssSystem::NavIC, 5, kNone, "L1 SPS"},
};
constexpr int kRowCount = int(std::size(kSignals));

// Signals the table lacks are numbered above it, by source and id.
constexpr int kUnknownNmeaSignal = 1000;
constexpr int kUnknownTrackedSignal = 2000;

// Every row of a name answers with the first row of that name, so that each source's
// way to a signal ends at one number.
int firstRowNamed(int row)
{
    static const auto firstRows = [] {
        std::array<int, kRowCount> rows{};
        for (int r = 0; r < kRowCount; ++r) {
            rows[size_t(r)] = r;
            for (int i = 0; i < r; ++i) {
                if (kSignals[i].system == kSignals[r].system && qstrcmp(kSignals[i].name, kSignals[r].name) == 0) {
                    rows[size_t(r)] = i;
                    break;
                }
            }
        }
        return rows;
    }();
    return firstRows[size_t(row)];
}

int findSignal(GnssSystem system, int SignalRow::*column, int value)
{
    for (int row = 0; row < kRowCount; ++row) {
        if (kSignals[row].system == system && kSignals[row].*column == value)
            return firstRowNamed(row);
    }
    return kNone;
}

} // namespace

int nmeaSignal(GnssSystem system, int nmeaSignalId)
{
    const int signal = findSignal(system, &SignalRow::nmeaSignalId, nmeaSignalId);
    return signal != kNone ? signal : kUnknownNmeaSignal + nmeaSignalId;
}

int trackedSignal(GnssSystem system, int signalType, bool l2cFlag)
{
    int signal = l2cFlag ? findSignal(system, &SignalRow::trackingType, signalType | kL2cFlag) : kNone;
    if (signal == kNone)
        signal = findSignal(system, &SignalRow::trackingType, signalType);
    return signal != kNone ? signal : kUnknownTrackedSignal + signalType;
}

int primarySignal(GnssSystem system)
{
    for (int row = 0; row < kRowCount; ++row) {
        if (kSignals[row].system == system)
            return row;
    }
    return kUnknownNmeaSignal;
}

QString signalName(int signal)
{
    if (signal >= 0 && signal < kRowCount)
        return QString::fromLatin1(kSignals[signal].name);
    if (signal >= kUnknownTrackedSignal)
        return QStringLiteral("signal type %1").arg(signal - kUnknownTrackedSignal);
    return QStringLiteral("signal id %1").arg(QString::number(signal - kUnknownNmeaSignal, 16).toUpper());
}

GnssSystem trackingStatusSystem(int systemField)
{
    static const GnssSystem kFieldSystems[] = {GnssSystem::GPS, GnssSystem::GLONASS, GnssSystem::SBAS,
        GnssSystem::Galileo, GnssSystem::BDS, GnssSystem::QZSS, GnssSystem::NavIC};
    return systemField >= 0 && systemField < int(std::size(kFieldSystems)) ? kFieldSystems[systemField]
                                                                           : GnssSystem::Unknown;
}
