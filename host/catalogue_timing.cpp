#include "messageviewmetaobjctx.h"

#include "bdt.h"
#include "gat.h"
#include "glt.h"
#include "gpt.h"
#include "jam.h"
#include "lsinfo.h"
#include "ppstable.h"
#include "svnum.h"
#include "timepos.h"
#include "tpfinfo.h"
#include "utc.h"

#include <iterator>

// The timing receivers' pages under "Time", every one in the timing mode.
// "GATTIME" is the Galileo time page's label although its sentence is $GALTIME.
static const MessageViewMetaObjCtx kTiming[] = {
    {LSINFO::staticMetaObject, QStringLiteral("LSINFO"), 0},
    {tpfinfo::staticMetaObject, QStringLiteral("TPFINFO"), 0},
    {PPSTable::staticMetaObject, QStringLiteral("PPSINFO"), 0},
    {BDT::staticMetaObject, QStringLiteral("BDSTIME"), 0},
    {GPT::staticMetaObject, QStringLiteral("GPSTIME"), 0},
    {GLT::staticMetaObject, QStringLiteral("GLOTIME"), 0},
    {GAT::staticMetaObject, QStringLiteral("GATTIME"), 0},
    {UTC::staticMetaObject, QStringLiteral("UTCTIME"), 0},
    {timepos::staticMetaObject, QStringLiteral("TIMPOS"), 0},
    {JAM::staticMetaObject, QStringLiteral("JAM"), 0},
    {svnum::staticMetaObject, QStringLiteral("SVNUM"), 0},
};

const MessageViewCatalogue timingCatalogue = {kTiming, int(std::size(kTiming))};
