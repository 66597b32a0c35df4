// SPDX-License-Identifier: BSD-3-Clause
#include "obsvmtable.h"

const ListPageSpec &ObsvmTable::pageSpec()
{
    static const ListPageSpec spec =
        ListPageSpec::log(staticMetaObject,
                          {
                              {QT_TR_NOOP("System Freq")},
                              {QT_TR_NOOP("PRN/ slot")},
                              {QT_TR_NOOP("psr")},
                              {QT_TR_NOOP("adr")},
                              {QT_TR_NOOP("psr std")},
                              {QT_TR_NOOP("adr std")},
                              {QT_TR_NOOP("dopp")},
                              {QT_TR_NOOP("C/No"), ListColumn::Hundredths},
                              {QT_TR_NOOP("REV")},
                              {QT_TR_NOOP("locktime")},
                              {QT_TR_NOOP("ch-tr-status"), ListColumn::SignalName},
                          })
            .rows(300)
            // A full-width colon here, unlike the RANGE pages.
            .countLine({QT_TR_NOOP("观测值总数：")})
            .window(747, 607);
    return spec;
}

ObsvmTable::ObsvmTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : ListPage(pageSpec(), parent, introStr, treeParent)
{
}
