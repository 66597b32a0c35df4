#include "messageviewmetaobjctx.h"

#include "agrictable.h"
#include "antennatable.h"
#include "bd3iontable.h"
#include "bdsephemtable.h"
#include "bdsiontable.h"
#include "bdsutctable.h"
#include "bestnavtable.h"
#include "bestpostable.h"
#include "bestsatstable.h"
#include "bestveltable.h"
#include "bestxyztable.h"
#include "fwinfotable.h"
#include "galephemtable.h"
#include "galiontable.h"
#include "galutctable.h"
#include "gloephemtable.h"
#include "gnhprtable.h"
#include "gpsephemeristable.h"
#include "gpsiontable.h"
#include "gpsutctable.h"
#include "headingtable.h"
#include "headingtable2.h"
#include "inspvatable.h"
#include "matchedpostable.h"
#include "matchedpostableh.h"
#include "obsvmtable.h"
#include "psrdoptable.h"
#include "psrdoptable2.h"
#include "psrpostable.h"
#include "psrveltable.h"
#include "rangehtable.h"
#include "rangetable.h"
#include "rawimuxtable.h"
#include "rtkdattable.h"
#include "satvistable.h"
#include "satvistable2.h"
#include "satxyz2table.h"
#include "tdifpostable.h"
#include "tdifveltable.h"
#include "timetable.h"

#include <iterator>

// The maker's ASCII logs under "Korvane", in tree order. Filter 2: only in mode 2.
// The clock-switch page has no row: it is built only on request.
static const MessageViewMetaObjCtx kKorvaneAscii[] = {
    {GnhprTable::staticMetaObject, QStringLiteral("HPR"), 0},
    {AgricTable::staticMetaObject, QStringLiteral("AGRIC"), 0},
    {SATVISTable::staticMetaObject, QStringLiteral("Satvis"), 0},
    {SATVISTable2::staticMetaObject, QStringLiteral("Satvis2"), 2},
    {BestposTable::staticMetaObject, QStringLiteral("Bestpos"), 0},
    {BestnavTable::staticMetaObject, QStringLiteral("Bestnav"), 0},
    {BestnavTable::staticMetaObject, QStringLiteral("BestnavH"), 0},
    {BestvelTable::staticMetaObject, QStringLiteral("Bestvel"), 0},
    {BestxyzTable::staticMetaObject, QStringLiteral("Bestxyz"), 0},
    {Satxyz2Table::staticMetaObject, QStringLiteral("Satxyz2"), 2},
    {HeadingTable::staticMetaObject, QStringLiteral("Heading"), 0},
    {HeadingTable::staticMetaObject, QStringLiteral("KvnHeading"), 0},
    {HeadingTable2::staticMetaObject, QStringLiteral("Heading2"), 2},
    {HeadingTable2::staticMetaObject, QStringLiteral("KvnHeading2"), 0},
    {MatchedposTable::staticMetaObject, QStringLiteral("Matchpos"), 0},
    {MatchedposTableh::staticMetaObject, QStringLiteral("Matchposh"), 0},
    {PsrdopTable::staticMetaObject, QStringLiteral("Psrdop"), 0},
    {PsrdopTable2::staticMetaObject, QStringLiteral("Psrdop2"), 0},
    {PsrposTable::staticMetaObject, QStringLiteral("Psrpos"), 2},
    {TdifposTable::staticMetaObject, QStringLiteral("Tdifpos"), 0},
    {PsrvelTable::staticMetaObject, QStringLiteral("Psrvel"), 0},
    {TdifvelTable::staticMetaObject, QStringLiteral("Tdifvel"), 0},
    {GpsutcTable::staticMetaObject, QStringLiteral("Gpsutc"), 0},
    {BdsutcTable::staticMetaObject, QStringLiteral("Bdsutc"), 0},
    {GalutcTable::staticMetaObject, QStringLiteral("Galutc"), 0},
    {GpsionTable::staticMetaObject, QStringLiteral("Gpsion"), 0},
    {BdsionTable::staticMetaObject, QStringLiteral("Bdsion"), 0},
    {Bd3ionTable::staticMetaObject, QStringLiteral("Bd3ion"), 0},
    {Galiontable::staticMetaObject, QStringLiteral("Galion"), 0},
    {FwinfoTable::staticMetaObject, QStringLiteral("Fwinfo"), 0},
    {BestsatsTable::staticMetaObject, QStringLiteral("Bestsats"), 0},
    {TimeTable::staticMetaObject, QStringLiteral("Time"), 0},
    {RtkdatTable::staticMetaObject, QStringLiteral("Rtkdata"), 0},
    {InspvaTable::staticMetaObject, QStringLiteral("Inspva"), 0},
    {RawimuxTable::staticMetaObject, QStringLiteral("Rawimux"), 0},
    {AntennaTable::staticMetaObject, QStringLiteral("Antenna"), 0},
    {GpsephemerisTable::staticMetaObject, QStringLiteral("Gpsephemeris"), 0},
    {GloephemTable::staticMetaObject, QStringLiteral("Gloephem"), 0},
    {BdsephemTable::staticMetaObject, QStringLiteral("Bdsephem"), 0},
    {GalephemTable::staticMetaObject, QStringLiteral("Galephem"), 0},
    {RangeTable::staticMetaObject, QStringLiteral("Range"), 2},
    {RangehTable::staticMetaObject, QStringLiteral("Rangeh"), 2},
    {ObsvmTable::staticMetaObject, QStringLiteral("Obsvm"), 0},
};
static_assert(std::size(kKorvaneAscii) == 43, "the Korvane catalogue lists 43 pages");

const MessageViewCatalogue korvaneAsciiCatalogue = {kKorvaneAscii, int(std::size(kKorvaneAscii))};
