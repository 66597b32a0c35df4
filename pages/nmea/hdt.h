// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// HDT: true heading.
class HDT : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE HDT(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
