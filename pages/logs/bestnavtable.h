// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// BESTNAV and BESTNAVH: the best position followed by the best velocity. One class
// serves both logs; the label an instance is made under picks its route.
class BestnavTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE BestnavTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
