// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// TIME: the receiver clock model and the UTC time.
class TimeTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE TimeTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
