// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// VTG: course over ground and ground speed.
class VTGTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE VTGTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
