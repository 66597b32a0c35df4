#include "messageviewmetaobjctx.h"

#include "bdsephemtable.h"
#include "bestpostable.h"
#include "bestsatstable.h"
#include "galephemtable.h"
#include "gloephemtable.h"
#include "gpsephemeristable.h"
#include "matchedpostable.h"
#include "matchedpostableh.h"
#include "obsvmtable.h"
#include "psrdoptable.h"
#include "psrdoptable2.h"
#include "psrpostable.h"
#include "rangehtable.h"
#include "rangetable.h"
#include "rtkdattable.h"
#include "satvistable.h"
#include "satvistable2.h"
#include "satxyz2table.h"
#include "tdifpostable.h"

#include <iterator>

// The maker's ASCII logs under "Korvane". Filter 2: only in mode 2.
static const MessageViewMetaObjCtx kKorvaneAscii[] = {
    {SATVISTable::staticMetaObject, QStringLiteral("Satvis"), 0},
    {SATVISTable2::staticMetaObject, QStringLiteral("Satvis2"), 2},
    {BestposTable::staticMetaObject, QStringLiteral("Bestpos"), 0},
    {Satxyz2Table::staticMetaObject, QStringLiteral("Satxyz2"), 2},
    {MatchedposTable::staticMetaObject, QStringLiteral("Matchpos"), 0},
    {MatchedposTableh::staticMetaObject, QStringLiteral("Matchposh"), 0},
    {PsrdopTable::staticMetaObject, QStringLiteral("Psrdop"), 0},
    {PsrdopTable2::staticMetaObject, QStringLiteral("Psrdop2"), 0},
    {PsrposTable::staticMetaObject, QStringLiteral("Psrpos"), 2},
    {TdifposTable::staticMetaObject, QStringLiteral("Tdifpos"), 0},
    {BestsatsTable::staticMetaObject, QStringLiteral("Bestsats"), 0},
    {RtkdatTable::staticMetaObject, QStringLiteral("Rtkdata"), 0},
    {GpsephemerisTable::staticMetaObject, QStringLiteral("Gpsephemeris"), 0},
    {GloephemTable::staticMetaObject, QStringLiteral("Gloephem"), 0},
    {BdsephemTable::staticMetaObject, QStringLiteral("Bdsephem"), 0},
    {GalephemTable::staticMetaObject, QStringLiteral("Galephem"), 0},
    {RangeTable::staticMetaObject, QStringLiteral("Range"), 2},
    {RangehTable::staticMetaObject, QStringLiteral("Rangeh"), 2},
    {ObsvmTable::staticMetaObject, QStringLiteral("Obsvm"), 0},
};

const MessageViewCatalogue korvaneAsciiCatalogue = {kKorvaneAscii, int(std::size(kKorvaneAscii))};
