// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// TDIFPOS: the time-differenced position.
class TdifposTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE TdifposTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
