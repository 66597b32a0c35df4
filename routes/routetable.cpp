// SPDX-License-Identifier: BSD-3-Clause
#include "routetable.h"

#include "fieldtext.h"
#include "linechecksum.h"

#include <array>
#include <string>

namespace {

// A row being written; the modifiers name the ways a page's test departs from
// its kind's.
// with() comes first: clang will not evaluate a constant expression that calls a
// member defined further down the class.
struct Row : PageRoute
{
private:
    template <typename T>
    constexpr Row with(T PageRoute::*field, T value) const
    {
        Row changed = *this;
        changed.*field = value;
        return changed;
    }

public:
    constexpr Row comparing(int length) const { return with(&PageRoute::comparedLength, length); }
    constexpr Row at(int index) const { return with(&PageRoute::offset, index); }
    constexpr Row onlyInMode(int mode) const { return with(&PageRoute::modeFilter, mode); }
    constexpr Row checksumAfterTaking() const { return with(&PageRoute::checksumBeforeTaking, false); }
    constexpr Row atLeast(int length) const { return with(&PageRoute::minimumLength, length); }
};

constexpr Row makeRow(const char *label, const char *pageClass, PageCategory category, const char *header, int offset,
                      bool requiresDollar)
{
    const int length = int(std::char_traits<char>::length(header));
    return Row{{label, pageClass, category, 0, QLatin1String(header, length), offset, length, requiresDollar, true, 0}};
}

// "$", any two talker letters, then the sentence formatter.
constexpr Row nmeaSentence(const char *label, const char *pageClass, const char *formatter)
{
    return makeRow(label, pageClass, PageCategory::Nmea, formatter, 3, true);
}

constexpr Row korvaneLog(const char *label, const char *pageClass, const char *header)
{
    return makeRow(label, pageClass, PageCategory::KorvaneAscii, header, 0, false);
}

// "$" and the sentence name.
constexpr Row timingSentence(const char *label, const char *pageClass, const char *name)
{
    return makeRow(label, pageClass, PageCategory::Timing, name, 1, true);
}

constexpr Row unlistedPage(const char *pageClass, const char *header)
{
    return makeRow(nullptr, pageClass, PageCategory::Unlisted, header, 0, false);
}

constexpr PageRoute kRoutes[] = {
    // First, as a class's first row is what its page compares under a label that no
    // row names. The receiver writes the clock-switch log in mixed case, and an
    // all-capitals one is not taken.
    unlistedPage("ClockswitchTable", "#ClockSwitchA,"),
    unlistedPage("HeadingTable", "#HEADINGA,"),
    // Ten characters compared over eleven: matches nothing.
    unlistedPage("HeadingTable2", "#HEADINGA,").comparing(11),

    // The only page that refuses lines under seven characters before its header
    // test, which needs seven anyway.
    nmeaSentence("GGA", "GGATable", "GGA,").atLeast(7),
    // The high-rate variants: four letters, no comma.
    nmeaSentence("GGAH", "GGATable", "GGAH").atLeast(7),
    nmeaSentence("VTG", "VTGTable", "VTG,"),
    nmeaSentence("ZDA", "ZDATable", "ZDA,"),
    nmeaSentence("RMC", "RMCTable", "RMC,"),
    nmeaSentence("RMCH", "RMCTable", "RMCH"),
    nmeaSentence("GSV", "GSVTable", "GSV,"),
    nmeaSentence("GLL", "GLLTable", "GLL,"),
    nmeaSentence("GST", "GSTtable", "GST,"),
    nmeaSentence("HDT", "HDT", "HDT,"),
    nmeaSentence("TRA", "TRAtable", "TRA,"),

    // A sentence among the logs, whose first character is not looked at; only the
    // checksum step wants a '$' or '#' there.
    korvaneLog("HPR", "GnhprTable", "HPR,").at(3),
    korvaneLog("AGRIC", "AgricTable", "#AGRICA,"),
    korvaneLog("Satvis", "SATVISTable", "#SATVISA,"),
    korvaneLog("Satvis2", "SATVISTable2", "#SATVIS2A,").onlyInMode(2).checksumAfterTaking(),
    korvaneLog("Bestpos", "BestposTable", "#BESTPOSA,"),
    korvaneLog("Bestnav", "BestnavTable", "#BESTNAVA,"),
    korvaneLog("BestnavH", "BestnavTable", "#BESTNAVHA"),
    korvaneLog("Bestvel", "BestvelTable", "#BESTVELA,"),
    korvaneLog("Bestxyz", "BestxyzTable", "#BESTXYZA,"),
    korvaneLog("Satxyz2", "Satxyz2Table", "#SATXYZ2A,").onlyInMode(2),
    // Nine characters compared over ten: HEADING logs never land here.
    korvaneLog("Heading", "HeadingTable", "#HEADINGA").comparing(10),
    // Also the prefix of KVNHEADING2 logs, which therefore land here, not below.
    korvaneLog("KvnHeading", "HeadingTable", "#KVNHEADIN"),
    korvaneLog("Heading2", "HeadingTable2", "#HEADING2A,").onlyInMode(2),
    // Also the prefix of KVNHEADING logs, which reach "KvnHeading" first.
    korvaneLog("KvnHeading2", "HeadingTable2", "#KVNHEADING"),
    // No comma, yet "#MATCHEDPOSHA" differs from it in the twelfth character.
    korvaneLog("Matchpos", "MatchedposTable", "#MATCHEDPOSA"),
    korvaneLog("Matchposh", "MatchedposTableh", "#MATCHEDPOSHA"),
    korvaneLog("Psrdop", "PsrdopTable", "#PSRDOPA,"),
    korvaneLog("Psrdop2", "PsrdopTable2", "#PSRDOP2A,"),
    korvaneLog("Psrpos", "PsrposTable", "#PSRPOSA,").onlyInMode(2),
    korvaneLog("Tdifpos", "TdifposTable", "#TDIFPOSA,"),
    korvaneLog("Psrvel", "PsrvelTable", "#PSRVELA,"),
    korvaneLog("Tdifvel", "TdifvelTable", "#TDIFVELA,"),
    // The ionosphere and UTC pages take whatever follows their seven characters.
    korvaneLog("Gpsutc", "GpsutcTable", "#GPSUTC"),
    korvaneLog("Bdsutc", "BdsutcTable", "#BDSUTC"),
    korvaneLog("Galutc", "GalutcTable", "#GALUTC"),
    korvaneLog("Gpsion", "GpsionTable", "#GPSION"),
    korvaneLog("Bdsion", "BdsionTable", "#BDSION"),
    korvaneLog("Bd3ion", "Bd3ionTable", "#BD3ION"),
    korvaneLog("Galion", "Galiontable", "#GALION"),
    korvaneLog("Fwinfo", "FwinfoTable", "#FWINFOA,"),
    korvaneLog("Bestsats", "BestsatsTable", "#BESTSATSA,"),
    korvaneLog("Time", "TimeTable", "#TIMEA,"),
    korvaneLog("Rtkdata", "RtkdatTable", "#RTKDATAA,"),
    korvaneLog("Inspva", "InspvaTable", "#INSPVAA,"),
    korvaneLog("Rawimux", "RawimuxTable", "#RAWIMUXA,"),
    korvaneLog("Antenna", "AntennaTable", "#ANTENNAA,"),
    korvaneLog("Gpsephemeris", "GpsephemerisTable", "#GPSEPHEMERISA,"),
    korvaneLog("Gloephem", "GloephemTable", "#GLOEPHEMA,"),
    korvaneLog("Bdsephem", "BdsephemTable", "#BDSEPHEMA,"),
    korvaneLog("Galephem", "GalephemTable", "#GALEPHEMA,"),
    korvaneLog("Range", "RangeTable", "#RANGEA,").onlyInMode(2),
    korvaneLog("Rangeh", "RangehTable", "#RANGEHA,").onlyInMode(2),
    korvaneLog("Obsvm", "ObsvmTable", "#OBSVMA,"),

    // The name only, no comma: any sentence whose name begins with it.
    timingSentence("LSINFO", "LSINFO", "LSINFO"),
    // From index 3 like an NMEA formatter: "TP" is not looked at.
    timingSentence("TPFINFO", "tpfinfo", "FINFO,").at(3),
    // The name only, as above.
    timingSentence("PPSINFO", "PPSTable", "PPSINFO"),
    timingSentence("BDSTIME", "BDT", "BDSTIME,"),
    timingSentence("GPSTIME", "GPT", "GPSTIME,"),
    timingSentence("GLOTIME", "GLT", "GLOTIME,"),
    // Listed as GATTIME, takes GALTIME sentences.
    timingSentence("GATTIME", "GAT", "GALTIME,"),
    timingSentence("UTCTIME", "UTC", "UTCTIME,"),
    timingSentence("TIMPOS", "timepos", "TIMPOS,"),
    // The name only, as above.
    timingSentence("JAM", "JAM", "JAM"),
    timingSentence("SVNUM", "svnum", "NUM,").at(3),
};

// The categories a mode shows, in the order their pages are offered lines.
QVector<PageCategory> categoriesShownIn(int mode)
{
    switch (mode) {
    case 0: return {PageCategory::Nmea};
    case 1:
    case 2: return {PageCategory::Nmea, PageCategory::KorvaneAscii};
    case 7: return {PageCategory::Nmea, PageCategory::Timing};
    default: return {};
    }
}

constexpr int kModeCount = 8;

} // namespace

bool PageRoute::matchesHeader(const QString &line) const
{
    if (line.size() < minimumLength)
        return false;
    if (requiresDollar && !line.startsWith(QLatin1Char('$')))
        return false;
    return textAtEquals(line, offset, comparedLength, header);
}

QVector<const PageRoute *> categoryRoutes(PageCategory category)
{
    QVector<const PageRoute *> routes;
    for (const PageRoute &route : kRoutes) {
        if (route.category == category)
            routes.append(&route);
    }
    return routes;
}

const QVector<const PageRoute *> &offeredRoutes(int mode)
{
    static const auto kByMode = [] {
        std::array<QVector<const PageRoute *>, kModeCount> byMode;
        for (int m = 0; m < kModeCount; ++m) {
            for (PageCategory category : categoriesShownIn(m)) {
                for (const PageRoute *route : categoryRoutes(category)) {
                    if (route->modeFilter == 0 || route->modeFilter == m)
                        byMode[m].append(route);
                }
            }
        }
        return byMode;
    }();
    static const QVector<const PageRoute *> kNone;
    return mode >= 0 && mode < kModeCount ? kByMode[mode] : kNone;
}

const PageRoute &routeOfPage(const char *pageClass, const QString &label)
{
    const PageRoute *first = nullptr;
    for (const PageRoute &route : kRoutes) {
        if (qstrcmp(route.pageClass, pageClass) != 0)
            continue;
        if (route.label && label == QLatin1String(route.label))
            return route;
        if (!first)
            first = &route;
    }
    if (!first)
        qFatal("no route for page class %s", pageClass);
    return *first;
}

const PageRoute *routeTakingLine(int mode, const QString &line)
{
    int checksumPassed = -1; // computed once, when a header first matches
    for (const PageRoute *route : offeredRoutes(mode)) {
        if (!route->matchesHeader(line))
            continue;
        if (route->checksumBeforeTaking) {
            if (checksumPassed < 0)
                checksumPassed = checkLineChecksum(line) ? 1 : 0;
            if (!checksumPassed)
                continue;
        }
        return route;
    }
    return nullptr;
}
