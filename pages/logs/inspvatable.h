// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// INSPVA: the inertial position, velocity and attitude.
class InspvaTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE InspvaTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
