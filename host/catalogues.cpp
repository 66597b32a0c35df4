// SPDX-License-Identifier: BSD-3-Clause
#include "messageviewmetaobjctx.h"

#include "routetable.h"

#include "agrictable.h"
#include "antennatable.h"
#include "bd3iontable.h"
#include "bdsephemtable.h"
#include "bdsiontable.h"
#include "bdsutctable.h"
#include "bdt.h"
#include "bestnavtable.h"
#include "bestpostable.h"
#include "bestsatstable.h"
#include "bestveltable.h"
#include "bestxyztable.h"
#include "fwinfotable.h"
#include "galephemtable.h"
#include "galiontable.h"
#include "galutctable.h"
#include "gat.h"
#include "ggatable.h"
#include "glltable.h"
#include "gloephemtable.h"
#include "glt.h"
#include "gnhprtable.h"
#include "gpsephemeristable.h"
#include "gpsiontable.h"
#include "gpsutctable.h"
#include "gpt.h"
#include "gsttable.h"
#include "gsvtable.h"
#include "hdt.h"
#include "headingtable.h"
#include "headingtable2.h"
#include "inspvatable.h"
#include "jam.h"
#include "lsinfo.h"
#include "matchedpostable.h"
#include "matchedpostableh.h"
#include "obsvmtable.h"
#include "ppstable.h"
#include "psrdoptable.h"
#include "psrdoptable2.h"
#include "psrpostable.h"
#include "psrveltable.h"
#include "rangehtable.h"
#include "rangetable.h"
#include "rawimuxtable.h"
#include "rmctable.h"
#include "rtkdattable.h"
#include "satvistable.h"
#include "satvistable2.h"
#include "satxyz2table.h"
#include "svnum.h"
#include "tdifpostable.h"
#include "tdifveltable.h"
#include "timepos.h"
#include "timetable.h"
#include "tpfinfo.h"
#include "tratable.h"
#include "utc.h"
#include "vtgtable.h"
#include "zdatable.h"

namespace {

// The page classes the catalogues can make; the route table says which, under
// which label, in which order and mode.
const QMetaObject *const kPageClasses[] = {
    &AgricTable::staticMetaObject,        &AntennaTable::staticMetaObject,     &BDT::staticMetaObject,
    &Bd3ionTable::staticMetaObject,       &BdsephemTable::staticMetaObject,    &BdsionTable::staticMetaObject,
    &BdsutcTable::staticMetaObject,       &BestnavTable::staticMetaObject,     &BestposTable::staticMetaObject,
    &BestsatsTable::staticMetaObject,     &BestvelTable::staticMetaObject,     &BestxyzTable::staticMetaObject,
    &FwinfoTable::staticMetaObject,       &GAT::staticMetaObject,              &GGATable::staticMetaObject,
    &GLLTable::staticMetaObject,          &GLT::staticMetaObject,              &GPT::staticMetaObject,
    &GSTtable::staticMetaObject,          &GSVTable::staticMetaObject,         &GalephemTable::staticMetaObject,
    &Galiontable::staticMetaObject,       &GalutcTable::staticMetaObject,      &GloephemTable::staticMetaObject,
    &GnhprTable::staticMetaObject,        &GpsephemerisTable::staticMetaObject, &GpsionTable::staticMetaObject,
    &GpsutcTable::staticMetaObject,       &HDT::staticMetaObject,              &HeadingTable::staticMetaObject,
    &HeadingTable2::staticMetaObject,     &InspvaTable::staticMetaObject,      &JAM::staticMetaObject,
    &LSINFO::staticMetaObject,            &MatchedposTable::staticMetaObject,  &MatchedposTableh::staticMetaObject,
    &ObsvmTable::staticMetaObject,        &PPSTable::staticMetaObject,         &PsrdopTable::staticMetaObject,
    &PsrdopTable2::staticMetaObject,      &PsrposTable::staticMetaObject,      &PsrvelTable::staticMetaObject,
    &RMCTable::staticMetaObject,          &RangeTable::staticMetaObject,       &RangehTable::staticMetaObject,
    &RawimuxTable::staticMetaObject,      &RtkdatTable::staticMetaObject,      &SATVISTable::staticMetaObject,
    &SATVISTable2::staticMetaObject,      &Satxyz2Table::staticMetaObject,     &TRAtable::staticMetaObject,
    &TdifposTable::staticMetaObject,      &TdifvelTable::staticMetaObject,     &TimeTable::staticMetaObject,
    &UTC::staticMetaObject,               &VTGTable::staticMetaObject,         &ZDATable::staticMetaObject,
    &svnum::staticMetaObject,             &timepos::staticMetaObject,          &tpfinfo::staticMetaObject,
};

const QMetaObject &pageClass(const char *name)
{
    const QMetaObject *found = nullptr;
    for (const QMetaObject *page : kPageClasses) {
        if (qstrcmp(page->className(), name) == 0)
            found = page;
    }
    if (!found)
        qFatal("page class %s is not in the catalogues' list", name);
    return *found;
}

QVector<MessageViewMetaObjCtx> entriesOf(PageCategory category)
{
    QVector<MessageViewMetaObjCtx> entries;
    for (const PageRoute *route : categoryRoutes(category))
        entries.append({pageClass(route->pageClass), QLatin1String(route->label), route->modeFilter});
    return entries;
}

const QVector<MessageViewMetaObjCtx> kNmea = entriesOf(PageCategory::Nmea);
const QVector<MessageViewMetaObjCtx> kKorvaneAscii = entriesOf(PageCategory::KorvaneAscii);
const QVector<MessageViewMetaObjCtx> kTiming = entriesOf(PageCategory::Timing);

} // namespace

const MessageViewCatalogue nmeaCatalogue = {kNmea.constData(), kNmea.size()};
const MessageViewCatalogue korvaneAsciiCatalogue = {kKorvaneAscii.constData(), kKorvaneAscii.size()};
const MessageViewCatalogue timingCatalogue = {kTiming.constData(), kTiming.size()};
