// SPDX-License-Identifier: BSD-3-Clause
#include "bestsatstable.h"

const ListPageSpec &BestsatsTable::pageSpec()
{
    static const ListPageSpec spec =
        ListPageSpec::log(staticMetaObject,
                          {
                              {QT_TR_NOOP("卫星系统")},
                              {QT_TR_NOOP("卫星ID号")},
                              {QT_TR_NOOP("Status")},
                              {QT_TR_NOOP("Signal mask")},
                          })
            .rows(70)
            .countLine({QT_TR_NOOP("总数")})
            .countFromFirstField();
    return spec;
}

BestsatsTable::BestsatsTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : ListPage(pageSpec(), parent, introStr, treeParent)
{
}
