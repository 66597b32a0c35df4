#include "messageviewmetaobjctx.h"

#include "ggatable.h"
#include "glltable.h"
#include "gsttable.h"
#include "gsvtable.h"
#include "hdt.h"
#include "rmctable.h"
#include "tratable.h"
#include "vtgtable.h"
#include "zdatable.h"

#include <iterator>

// The NMEA sentence pages under "NMEA", every one in every mode that shows them.
// "GGAH" and "RMCH" are second pages of the GGA and RMC classes for the high-rate variants.
static const MessageViewMetaObjCtx kNmea[] = {
    {GGATable::staticMetaObject, QStringLiteral("GGA"), 0},
    {GGATable::staticMetaObject, QStringLiteral("GGAH"), 0},
    {VTGTable::staticMetaObject, QStringLiteral("VTG"), 0},
    {ZDATable::staticMetaObject, QStringLiteral("ZDA"), 0},
    {RMCTable::staticMetaObject, QStringLiteral("RMC"), 0},
    {RMCTable::staticMetaObject, QStringLiteral("RMCH"), 0},
    {GSVTable::staticMetaObject, QStringLiteral("GSV"), 0},
    {GLLTable::staticMetaObject, QStringLiteral("GLL"), 0},
    {GSTtable::staticMetaObject, QStringLiteral("GST"), 0},
    {HDT::staticMetaObject, QStringLiteral("HDT"), 0},
    {TRAtable::staticMetaObject, QStringLiteral("TRA"), 0},
};

const MessageViewCatalogue nmeaCatalogue = {kNmea, int(std::size(kNmea))};
