// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// PSRPOS: the pseudorange-only position.
class PsrposTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE PsrposTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
