// SPDX-License-Identifier: BSD-3-Clause
#include "satellitenumbers.h"

#include <QLatin1String>
#include <iterator>

namespace {

enum Plan : quint8 {
    Shared = 1,   // the NMEA numbers GP, GN and GSA system 1 use for several systems
    Own = 2,      // under the system's own talker or system id
    Receiver = 4, // the maker's satellite lists and DOP logs
};

struct NumberRange
{
    GnssSystem system;
    int first, last;
    int offset; // the system's own number is the written number minus this
    quint8 plans;
};

// Ranges of one system never overlap within a plan. Where a receiver-list range meets
// an own range of the same system (Galileo 101-110, BDS 201-223) the receiver's range
// is tried first for the logs; NMEA never looks at receiver ranges.
constexpr NumberRange kRanges[] = {
    {GnssSystem::GPS, 1, 32, 0, Shared | Own | Receiver},
    {GnssSystem::SBAS, 33, 64, -87, Shared | Own},
    {GnssSystem::GLONASS, 65, 96, 64, Shared | Own},
    {GnssSystem::SBAS, 120, 158, 0, Shared | Own | Receiver},
    // QZSS as receivers numbered it under GP before it had a talker of its own.
    {GnssSystem::QZSS, 193, 202, 192, Shared | Own},
    // A GLONASS talker numbers no GPS satellite: slots written as they are.
    {GnssSystem::GLONASS, 1, 32, 0, Own},
    {GnssSystem::Galileo, 1, 36, 0, Own},
    {GnssSystem::Galileo, 101, 136, 100, Own}, // seen from Quectel receivers
    {GnssSystem::Galileo, 301, 336, 300, Own}, // u-blox extended numbering
    {GnssSystem::BDS, 1, 63, 0, Own},
    {GnssSystem::BDS, 201, 263, 200, Own},
    {GnssSystem::BDS, 401, 463, 400, Own}, // u-blox extended numbering
    {GnssSystem::QZSS, 1, 10, 0, Own},
    {GnssSystem::NavIC, 1, 14, 0, Own},
    {GnssSystem::QZSS, 33, 37, 32, Receiver},
    {GnssSystem::GLONASS, 38, 61, 37, Receiver},
    {GnssSystem::Galileo, 75, 110, 74, Receiver},
    {GnssSystem::BDS, 161, 223, 160, Receiver},
};

// The first range of the plans (and of the system, unless Unknown) holding number.
SatelliteId findNumber(GnssSystem system, quint8 plans, int number)
{
    for (const NumberRange &range : kRanges) {
        if ((range.plans & plans) && (system == GnssSystem::Unknown || range.system == system) && number >= range.first
            && number <= range.last)
            return {range.system, number - range.offset};
    }
    return {};
}

struct Talker
{
    const char *letters;
    NmeaSource source;
};

constexpr Talker kTalkers[] = {
    {"GP", {GnssSystem::GPS, true}},
    {"GN", {GnssSystem::Unknown, true}},
    {"GL", {GnssSystem::GLONASS, false}},
    {"GA", {GnssSystem::Galileo, false}},
    {"GB", {GnssSystem::BDS, false}},
    {"BD", {GnssSystem::BDS, false}},
    {"GQ", {GnssSystem::QZSS, false}},
    {"QZ", {GnssSystem::QZSS, false}},
    {"GI", {GnssSystem::NavIC, false}},
    {"IR", {GnssSystem::NavIC, false}},
};

constexpr int kPrnsPerSystem = 1024;

} // namespace

// GnssSystem lists the known systems first, in knownSystems() order.
int systemIndex(GnssSystem system)
{
    return system < GnssSystem::Unknown ? int(system) : -1;
}

int satelliteKey(SatelliteId id)
{
    return systemIndex(id.system) * kPrnsPerSystem + id.prn;
}

SatelliteId satelliteOfKey(int key)
{
    const int index = key / kPrnsPerSystem;
    return {index >= 0 && index < int(GnssSystem::Unknown) ? GnssSystem(index) : GnssSystem::Unknown, key % kPrnsPerSystem};
}

std::optional<NmeaSource> talkerSource(QStringView address)
{
    for (const Talker &talker : kTalkers) {
        if (address.startsWith(QLatin1String(talker.letters)))
            return talker.source;
    }
    return std::nullopt;
}

std::optional<NmeaSource> systemIdSource(int systemId)
{
    static const GnssSystem kIdSystems[] = {GnssSystem::GPS, GnssSystem::GLONASS, GnssSystem::Galileo, GnssSystem::BDS,
        GnssSystem::QZSS, GnssSystem::NavIC};
    if (systemId < 1 || systemId > int(std::size(kIdSystems)))
        return std::nullopt;
    return NmeaSource{kIdSystems[systemId - 1], systemId == 1};
}

SatelliteId nmeaSatellite(const NmeaSource &source, int number)
{
    return source.sharedNumbers ? findNumber(GnssSystem::Unknown, Shared, number)
                                : findNumber(source.system, Own, number);
}

SatelliteId receiverSatellite(GnssSystem system, int number)
{
    const SatelliteId id = findNumber(system, Receiver, number);
    return id.isValid() || system == GnssSystem::Unknown ? id : findNumber(system, Own, number);
}

GnssSystem systemOfWord(QStringView word)
{
    static const struct
    {
        const char *word;
        GnssSystem system;
    } kWords[] = {
        {"GPS", GnssSystem::GPS},
        {"GLONASS", GnssSystem::GLONASS},
        {"GALILEO", GnssSystem::Galileo},
        {"BDS", GnssSystem::BDS},
        {"BEIDOU", GnssSystem::BDS},
        {"QZSS", GnssSystem::QZSS},
        {"SBAS", GnssSystem::SBAS},
        {"NAVIC", GnssSystem::NavIC},
        {"IRNSS", GnssSystem::NavIC},
    };
    for (const auto &entry : kWords) {
        if (word == QLatin1String(entry.word))
            return entry.system;
    }
    return GnssSystem::Unknown;
}
