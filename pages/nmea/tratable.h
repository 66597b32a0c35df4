// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// TRA: the receiver's heading, pitch and roll sentence with solution quality.
class TRAtable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE TRAtable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
