// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// TDIFVEL: the time-differenced velocity.
class TdifvelTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE TdifvelTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
