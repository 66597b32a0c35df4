// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// RMC: the recommended minimum navigation data, and its high-rate RMCH variant.
class RMCTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE RMCTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
