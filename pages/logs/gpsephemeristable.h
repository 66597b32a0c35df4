// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ephemerispage.h"

// GPSEPHEMERIS: the GPS broadcast ephemerides, one row per satellite of a burst.
class GpsephemerisTable : public EphemerisPage
{
    Q_OBJECT
public:
    Q_INVOKABLE GpsephemerisTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const EphemerisSpec &pageSpec();
};
