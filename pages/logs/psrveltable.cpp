// SPDX-License-Identifier: BSD-3-Clause
#include "psrveltable.h"

#include "bestveltable.h"

const FieldTableSpec &PsrvelTable::pageSpec()
{
    static const FieldTableSpec spec = BestvelTable::velocityPage(staticMetaObject);
    return spec;
}

PsrvelTable::PsrvelTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
