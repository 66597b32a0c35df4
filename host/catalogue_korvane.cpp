#include "messageviewmetaobjctx.h"

#include "bestpostable.h"
#include "gnhprtable.h"
#include "matchedpostable.h"
#include "matchedpostableh.h"
#include "psrpostable.h"
#include "tdifpostable.h"

#include <iterator>

// The maker's ASCII logs under "Korvane". Filter 2: only in mode 2.
static const MessageViewMetaObjCtx kKorvaneAscii[] = {
    {GnhprTable::staticMetaObject, QStringLiteral("HPR"), 0},
    {BestposTable::staticMetaObject, QStringLiteral("Bestpos"), 0},
    {MatchedposTable::staticMetaObject, QStringLiteral("Matchpos"), 0},
    {MatchedposTableh::staticMetaObject, QStringLiteral("Matchposh"), 0},
    {PsrposTable::staticMetaObject, QStringLiteral("Psrpos"), 2},
    {TdifposTable::staticMetaObject, QStringLiteral("Tdifpos"), 0},
};

const MessageViewCatalogue korvaneAsciiCatalogue = {kKorvaneAscii, int(std::size(kKorvaneAscii))};
