// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// $PPSINFO: 1PPS phase error and the receiver clock.
class PPSTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE PPSTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
