// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receivertypes.h"

#include <QStringView>
#include <optional>

// Satellite numbers as the sources write them, turned into each system's own number
// (GPS 1-32, GLONASS slot 1-32, Galileo 1-36, BDS 1-63, QZSS 1-10, SBAS 120-158,
// NavIC 1-14). The number plans are listed in satellitenumbers.cpp.

struct SatelliteId
{
    GnssSystem system = GnssSystem::Unknown;
    int prn = 0;
    bool isValid() const { return system != GnssSystem::Unknown; }
};

// Orders satellites by system (in knownSystems() order), then by number.
int satelliteKey(SatelliteId id);
SatelliteId satelliteOfKey(int key);
// Index of a system in knownSystems(); -1 for Unknown.
int systemIndex(GnssSystem system);

// Whose satellites an NMEA sentence numbers: one system's, or those of the plan that
// GP, GN and GSA system id 1 share (GPS, SBAS, GLONASS and QZSS by ranges).
struct NmeaSource
{
    GnssSystem system = GnssSystem::Unknown; // Unknown for GN: the numbers decide
    bool sharedNumbers = false;
};

// From the address field ("GPGSV", "GBGSA", ...); nothing for talkers the state
// does not read.
std::optional<NmeaSource> talkerSource(QStringView address);
// From GSA's system id (1-6); nothing for other values.
std::optional<NmeaSource> systemIdSource(int systemId);

SatelliteId nmeaSatellite(const NmeaSource &source, int number);
// The maker's logs: with the system unknown (Unknown) by the receiver's list numbers
// (GPS 1-32, QZSS 33-37, GLONASS 38-61, Galileo 75-110, SBAS 120-158, BDS 161-223),
// with the system known by those or the system's own numbers.
SatelliteId receiverSatellite(GnssSystem system, int number);
// The system words of the per-system logs ("GPS", "GALILEO", "BDS", ...).
GnssSystem systemOfWord(QStringView word);
