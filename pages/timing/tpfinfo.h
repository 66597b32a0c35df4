// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// $TPFINFO: progress of the fixed-position (survey-in) optimisation.
class tpfinfo : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE tpfinfo(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
