// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// GLL: geographic position, latitude and longitude.
class GLLTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE GLLTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
