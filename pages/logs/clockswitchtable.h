// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// ClockSwitch: which clock source, internal or external, the receiver runs on.
class ClockswitchTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE ClockswitchTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
