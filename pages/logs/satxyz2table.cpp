// SPDX-License-Identifier: BSD-3-Clause
#include "satxyz2table.h"

const ListPageSpec &Satxyz2Table::pageSpec()
{
    static const ListPageSpec spec =
        ListPageSpec::log(staticMetaObject,
                          {
                              {QT_TR_NOOP("GNSS_SYSTEM")},
                              {QT_TR_NOOP("卫星号")},
                              {QT_TR_NOOP("SatCoord_X")},
                              {QT_TR_NOOP("SatCoord_Y")},
                              {QT_TR_NOOP("SatCoord_Z")},
                              {QT_TR_NOOP("Satclk")},
                              {QT_TR_NOOP("IonoDelay")},
                              {QT_TR_NOOP("TropDelay")},
                              {QT_TR_NOOP("reserved")},
                              {QT_TR_NOOP("reserved")},
                          })
            .rows(30)
            .countLine({QT_TR_NOOP("总卫星数")});
    return spec;
}

Satxyz2Table::Satxyz2Table(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : ListPage(pageSpec(), parent, introStr, treeParent)
{
}
