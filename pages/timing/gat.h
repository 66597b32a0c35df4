// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// $GALTIME: Galileo time. Listed in the tree as "GATTIME" while the sentence is named
// GALTIME; both names are the receiver's and stay as they are.
class GAT : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE GAT(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
