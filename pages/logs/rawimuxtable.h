// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// RAWIMUX: the raw IMU output.
class RawimuxTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE RawimuxTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
