// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// HEADING2 and the maker's KVNHEADING2: the heading solution of the second antenna pair.
class HeadingTable2 : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE HeadingTable2(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
