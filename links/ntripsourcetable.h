// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include "receivertypes.h"

// One STR line of a caster's sourcetable: a mountpoint and what it streams.
struct NtripMountpoint
{
    QString mountpoint;
    QString identifier;    // usually the place of the base station
    QString format;        // "RTCM 3.2", "RTCM 2.3", "CMR", ...
    QString formatDetails; // message types, often with their rates: "1005(10),1077(1)"
    int carrier = -1;      // 0 none, 1 L1, 2 L1 and L2; -1 unknown
    QString navigationSystem; // "GPS+GLO+GAL+BDS"
    QString network;
    QString country;       // ISO 3166 alpha-3
    double latitude = kUnknown;  // degrees; unknown when the caster gave none
    double longitude = kUnknown; // degrees east, -180..180
    bool nmeaNeeded = false;      // the caster wants the rover's GGA (virtual reference stations)
    bool networkSolution = false; // false: a single base station
    QString generator;
    QString compression;
    QString authentication; // "N" none, "B" basic, "D" digest
    bool fee = false;
    int bitrate = -1;       // bits per second; -1 unknown
    QString misc;

    bool hasPosition() const;
};

// The STR lines of a sourcetable; CAS and NET lines, blank lines and everything after
// ENDSOURCETABLE are left out. Short lines give what they have; a line without a
// mountpoint is skipped.
QList<NtripMountpoint> parseSourcetable(const QByteArray &table);

// Great-circle distance in km from the mountpoint to lat/lon (degrees); unknown (NaN) when
// either position is missing.
double distanceKm(const NtripMountpoint &mountpoint, double lat, double lon);
