// SPDX-License-Identifier: BSD-3-Clause
#include "satvistable2.h"

const ListPageSpec &SATVISTable2::pageSpec()
{
    static const ListPageSpec spec =
        ListPageSpec::log(staticMetaObject,
                          {
                              {QT_TR_NOOP("System"), ListColumn::Text, 0},
                              // Prn and glofreq each show their own field; a "+" in the Prn field is not split.
                              {QT_TR_NOOP("Prn")},
                              {QT_TR_NOOP("glofreq")},
                              {QT_TR_NOOP("health")},
                              {QT_TR_NOOP("高度角[deg]")},
                              {QT_TR_NOOP("方位角[deg]")},
                              {QT_TR_NOOP("app dop")},
                          })
            .rows(70)
            // Four fields (the constellation first) precede the first satellite.
            .rowFields(6, 4, 4)
            .gatheredBetween("GPS", "SBAS")
            .countLine({"", QT_TR_NOOP("<html><head/><body><p>卫星总数：</p></body></html>")}, "SatSumEdit");
    return spec;
}

SATVISTable2::SATVISTable2(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : ListPage(pageSpec(), parent, introStr, treeParent)
{
}
