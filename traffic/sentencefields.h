// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVector>

// The names of the fields after the address field of a common NMEA 0183 sentence, by
// its type whatever the talker ("GPGGA", "GNGGA" and "BDGGA" alike): "UTC time",
// "Latitude", "N/S", ... A proprietary ("P...") or unknown kind gets an empty list, and
// a field beyond the list has no name: the field view then shows its number only.
// Newer optional fields (mode, system and signal ids) are named too; repeating
// satellite groups are named "PRN 1", "Elevation 1", ...
QStringList sentenceFieldNames(const QByteArray &kind);
// The same for a sentence with fieldCount fields after its address (the checksum not
// counted): a GSV sentence with fewer than four satellites has its signal id named
// after the last satellite it holds.
QStringList sentenceFieldNames(const QByteArray &kind, int fieldCount);

struct NamedField
{
    QString name;  // empty when unknown
    QString value; // as lineText() shows it
};

// The fields of a line split at ',' and '*' as the pages split them: the address field
// first ("Address"), then the fields after it with their names, and the checksum last
// ("Checksum") when the line has a '*'. Without a kind (garbage) nothing is named.
QVector<NamedField> namedFields(const QByteArray &kind, const QByteArray &line);
