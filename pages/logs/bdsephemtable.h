// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ephemerispage.h"

// BDSEPHEM: the BeiDou broadcast ephemerides, one row per satellite of a burst.
class BdsephemTable : public EphemerisPage
{
    Q_OBJECT
public:
    Q_INVOKABLE BdsephemTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const EphemerisSpec &pageSpec();
};
