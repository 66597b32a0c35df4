// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// GST: pseudorange error statistics.
class GSTtable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE GSTtable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
