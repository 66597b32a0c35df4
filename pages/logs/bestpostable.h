// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// BESTPOS: the receiver's best available position.
class BestposTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE BestposTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

    // Rows 0 to 20, shared word for word by the PSRPOS, TDIFPOS and BESTNAV pages.
    static QVector<FieldRow> bestPositionRows();

private:
    static const FieldTableSpec &pageSpec();
};
