// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QStringView>

// The message kinds of the binary product modes, by the decode library's id. Both
// the decode page (names in the tree, layouts) and the built-in NMEA decoder (ids of
// what it frames) use this one table.
struct GnssMessageKind
{
    enum Family { Nmea, Binary };

    unsigned int id;
    const char *name;
    Family family;
    // Listed under the binary tree item in mode 4 as well as in mode 5.
    bool navigationOutput;
    // 0: one field per table row. Otherwise the record is a list of groups of this
    // many fields, one table row per group, the first field naming the system.
    int groupWidth;
    // A list whose rows are limited to the system chosen in the page's combo box.
    bool rowsBySystem;
};

const GnssMessageKind *gnssMessageKinds();
int gnssMessageKindCount();
const GnssMessageKind *gnssMessageKindById(unsigned int id);
const GnssMessageKind *gnssMessageKindByName(QStringView name);
