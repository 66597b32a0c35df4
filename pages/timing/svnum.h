// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// $SVNUM: satellites tracked per system.
class svnum : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE svnum(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
