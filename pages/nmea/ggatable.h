// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// GGA: the fix data sentence, and its high-rate GGAH variant.
class GGATable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE GGATable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
