// SPDX-License-Identifier: BSD-3-Clause
#include "gnssmessagekinds.h"

#include <QLatin1String>
#include <iterator>

namespace {

// In tree order. The NMEA kinds take the ids 1 to 9 in the receiver's order, so the
// two satellite lists GSA and GSV are ids 3 and 4; the maker's binary kinds follow
// from 65. The five list layouts are 3 (satellites used, one row per system), 4 (satellites in
// view), 79 (tracked signals), 80 (group delays per system and signal) and 81 (BDS
// group delays per satellite).
const GnssMessageKind kKinds[] = {
    {1, "GGA", GnssMessageKind::Nmea, true, 0, false},
    {2, "RMC", GnssMessageKind::Nmea, true, 0, false},
    {3, "GSA", GnssMessageKind::Nmea, true, 7, false},
    {4, "GSV", GnssMessageKind::Nmea, true, 6, true},
    {5, "GLL", GnssMessageKind::Nmea, true, 0, false},
    {6, "GST", GnssMessageKind::Nmea, true, 0, false},
    {7, "GBS", GnssMessageKind::Nmea, true, 0, false},
    {8, "VTG", GnssMessageKind::Nmea, true, 0, false},
    {9, "ZDA", GnssMessageKind::Nmea, true, 0, false},
    {65, "NAVPOS", GnssMessageKind::Binary, true, 0, false},
    {66, "NAVVEL", GnssMessageKind::Binary, true, 0, false},
    {67, "NAVTIME", GnssMessageKind::Binary, true, 0, false},
    {68, "NAVACC", GnssMessageKind::Binary, true, 0, false},
    {69, "OSNMA", GnssMessageKind::Binary, false, 0, false},
    {70, "CWOUT", GnssMessageKind::Binary, false, 0, false},
    {71, "GYOACC", GnssMessageKind::Binary, true, 0, false},
    {72, "SNRSTAT", GnssMessageKind::Binary, false, 0, false},
    {73, "IMURAW", GnssMessageKind::Binary, true, 0, false},
    {74, "NAVATT", GnssMessageKind::Binary, true, 0, false},
    {75, "INSPVA", GnssMessageKind::Binary, true, 0, false},
    {76, "Receiver Information", GnssMessageKind::Binary, false, 0, false},
    {77, "Ionosphere Information", GnssMessageKind::Binary, false, 0, false},
    {79, "Signal Information", GnssMessageKind::Binary, false, 5, true},
    {78, "Signal Information Structure", GnssMessageKind::Binary, false, 0, false},
    {80, "TGD Information", GnssMessageKind::Binary, false, 4, false},
    {82, "TGD(GPS) Information", GnssMessageKind::Binary, false, 0, false},
    {83, "TGD(QZSS) Information", GnssMessageKind::Binary, false, 0, false},
    {81, "TGD(BDS) Information", GnssMessageKind::Binary, false, 6, false},
};

} // namespace

const GnssMessageKind *gnssMessageKinds()
{
    return kKinds;
}

int gnssMessageKindCount()
{
    return int(std::size(kKinds));
}

const GnssMessageKind *gnssMessageKindById(unsigned int id)
{
    for (const GnssMessageKind &kind : kKinds) {
        if (kind.id == id)
            return &kind;
    }
    return nullptr;
}

const GnssMessageKind *gnssMessageKindByName(QStringView name)
{
    for (const GnssMessageKind &kind : kKinds) {
        if (name == QLatin1String(kind.name))
            return &kind;
    }
    return nullptr;
}
