// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// ANTENNA: the status of the receiver's antennas.
class AntennaTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE AntennaTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
