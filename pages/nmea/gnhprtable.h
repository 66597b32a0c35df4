// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// HPR: the receiver's heading, pitch and roll sentence.
class GnhprTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE GnhprTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
