// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// PSRVEL: the pseudorange-only velocity.
class PsrvelTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE PsrvelTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
