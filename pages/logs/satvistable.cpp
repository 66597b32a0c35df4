// SPDX-License-Identifier: BSD-3-Clause
#include "satvistable.h"

const ListPageSpec &SATVISTable::pageSpec()
{
    static const ListPageSpec spec =
        ListPageSpec::log(staticMetaObject,
                          {
                              {QT_TR_NOOP("卫星号")},
                              {QT_TR_NOOP("glofreq")},
                              {QT_TR_NOOP("health")},
                              {QT_TR_NOOP("高度角[deg]")},
                              {QT_TR_NOOP("方位角[deg]")},
                              {QT_TR_NOOP("True dop")},
                              {QT_TR_NOOP("app dop")},
                          })
            .rows(70)
            // Three fields precede the first satellite.
            .rowFields(7, 3)
            .countLine({QT_TR_NOOP("<html><head/><body><p>卫星总数：</p></body></html>")}, "SatSumEdit");
    return spec;
}

SATVISTable::SATVISTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : ListPage(pageSpec(), parent, introStr, treeParent)
{
}
