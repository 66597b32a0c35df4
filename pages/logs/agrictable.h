// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// AGRIC: the one-line agricultural summary (RTK status, heading, velocities, rover,
// base and secondary-antenna coordinates).
class AgricTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE AgricTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
