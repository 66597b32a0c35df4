// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// BESTXYZ: the best position and velocity in Earth-centred Cartesian coordinates.
class BestxyzTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE BestxyzTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
