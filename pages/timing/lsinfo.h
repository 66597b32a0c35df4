// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// $LSINFO: leap-second information of one satellite system.
class LSINFO : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE LSINFO(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
