// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receivertypes.h"

#include <QString>
#include <QVector>

class QIODevice;

// One epoch's position as the receiver state read it.
struct TrackPoint
{
    qint64 timeMs = 0; // UTC ms since 1970-01-01 (a time of day from that day when the recording has no dates)
    double lat = kUnknown, lon = kUnknown; // degrees
    double heightMsl = kUnknown, heightEllipsoid = kUnknown; // m
    FixQuality quality = FixQuality::NoFix;
    int satellitesUsed = -1;
    double hdop = kUnknown;
    double sdLat = kUnknown, sdLon = kUnknown, sdHeight = kUnknown; // m, 1 sigma
};

enum class TrackFormat { Csv, Gpx, Kml };

// "csv", "gpx", "kml" (case-insensitive); false for anything else.
bool parseTrackFormat(const QString &name, TrackFormat *format);

// Writes the points in the format; false (and error) when the device fails.
bool writeTrack(QIODevice &out, TrackFormat format, const QVector<TrackPoint> &points, const QString &name,
                QString *error);
