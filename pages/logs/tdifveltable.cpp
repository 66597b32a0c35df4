// SPDX-License-Identifier: BSD-3-Clause
#include "tdifveltable.h"

#include "bestveltable.h"

const FieldTableSpec &TdifvelTable::pageSpec()
{
    static const FieldTableSpec spec = BestvelTable::velocityPage(staticMetaObject);
    return spec;
}

TdifvelTable::TdifvelTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
