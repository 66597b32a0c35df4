// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// $TIMPOS: the timing receiver's real-time and fixed position.
class timepos : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE timepos(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
