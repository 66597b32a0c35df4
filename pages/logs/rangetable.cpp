// SPDX-License-Identifier: BSD-3-Clause
#include "rangetable.h"

QVector<ListColumn> RangeTable::observationColumns()
{
    return {
        {QT_TR_NOOP("PRN")},
        {QT_TR_NOOP("glofreq")},
        {QT_TR_NOOP("psr")},
        {QT_TR_NOOP("psr std")},
        {QT_TR_NOOP("adr")},
        {QT_TR_NOOP("adr std")},
        {QT_TR_NOOP("dopp")},
        {QT_TR_NOOP("CNo")},
        {QT_TR_NOOP("locktime")},
        {QT_TR_NOOP("ch-tr-status"), ListColumn::SignalName},
    };
}

const ListPageSpec &RangeTable::pageSpec()
{
    static const ListPageSpec spec =
        ListPageSpec::log(staticMetaObject, observationColumns())
            .rows(200)
            .countLine({QT_TR_NOOP("观测值总数:")})
            .window(580, 392);
    return spec;
}

RangeTable::RangeTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : ListPage(pageSpec(), parent, introStr, treeParent)
{
}
