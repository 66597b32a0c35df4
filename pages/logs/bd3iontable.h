// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// BD3ION: the BDS-3 ionospheric delay correction model.
class Bd3ionTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE Bd3ionTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
