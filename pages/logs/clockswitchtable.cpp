// SPDX-License-Identifier: BSD-3-Clause
#include "clockswitchtable.h"

#include "plainrecordform.h"

const FieldTableSpec &ClockswitchTable::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("Status"), nullptr, QT_TR_NOOP("时钟类型 1 = 内钟 0 = 外钟,默认为内钟")},
    };
    static const FieldTableSpec spec = plainRecordPage(staticMetaObject, fieldRows(rows));
    return spec;
}

ClockswitchTable::ClockswitchTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
