// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "listpage.h"

// SATVIS2: the satellites in view, one line per constellation gathered into one table.
class SATVISTable2 : public ListPage
{
    Q_OBJECT
public:
    Q_INVOKABLE SATVISTable2(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const ListPageSpec &pageSpec();
};
