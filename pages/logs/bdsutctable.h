// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// BDSUTC: the BDS time to UTC conversion parameters, laid out as GPSUTC.
class BdsutcTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE BdsutcTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
