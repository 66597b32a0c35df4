// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// $GPSTIME: GPS time and the leap second.
class GPT : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE GPT(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
