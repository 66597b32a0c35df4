// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// FWINFO: the receiver's product and firmware information.
class FwinfoTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE FwinfoTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
