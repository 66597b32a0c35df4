// SPDX-License-Identifier: BSD-3-Clause
#include "psrdoptable2.h"

#include "psrdoptable.h"

const DopPageSpec &PsrdopTable2::pageSpec()
{
    static const DopPageSpec spec = PsrdopTable::dopSpec(staticMetaObject);
    return spec;
}

PsrdopTable2::PsrdopTable2(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : DopPage(pageSpec(), parent, introStr, treeParent)
{
}
