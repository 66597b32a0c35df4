// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// ZDA: UTC time and date with the local zone.
class ZDATable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE ZDATable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
