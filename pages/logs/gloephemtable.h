// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ephemerispage.h"

// GLOEPHEM: the GLONASS broadcast ephemerides, one row per satellite of a burst.
class GloephemTable : public EphemerisPage
{
    Q_OBJECT
public:
    Q_INVOKABLE GloephemTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const EphemerisSpec &pageSpec();
};
