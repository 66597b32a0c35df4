// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ephemerispage.h"

// GALEPHEM: the Galileo broadcast ephemerides, one row per satellite of a burst.
class GalephemTable : public EphemerisPage
{
    Q_OBJECT
public:
    Q_INVOKABLE GalephemTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const EphemerisSpec &pageSpec();
};
