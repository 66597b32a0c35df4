// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// $UTCTIME: the receiver's broken-down UTC time.
class UTC : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE UTC(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
