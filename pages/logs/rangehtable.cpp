// SPDX-License-Identifier: BSD-3-Clause
#include "rangehtable.h"

#include "rangetable.h"

const ListPageSpec &RangehTable::pageSpec()
{
    static const ListPageSpec spec =
        ListPageSpec::log(staticMetaObject, RangeTable::observationColumns())
            .rows(200)
            .countLine({QT_TR_NOOP("观测值总数:")})
            .window(580, 392);
    return spec;
}

RangehTable::RangehTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : ListPage(pageSpec(), parent, introStr, treeParent)
{
}
