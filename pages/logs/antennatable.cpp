// SPDX-License-Identifier: BSD-3-Clause
#include "antennatable.h"

#include "plainrecordform.h"

const FieldTableSpec &AntennaTable::pageSpec()
{
    // "reversed" for the reserved field is the log's own word, kept on purpose.
    static const FieldRow rows[] = {
        {QT_TR_NOOP("status1"), nullptr, QT_TR_NOOP("天线 1 的状态信息")},
        {QT_TR_NOOP("status2"), nullptr, QT_TR_NOOP("天线 2 的状态信息")},
        {QT_TR_NOOP("status3"), nullptr, QT_TR_NOOP("天线 3 的状态信息")},
        {QT_TR_NOOP("reversed"), nullptr, QT_TR_NOOP("保留字段")},
    };
    static const FieldTableSpec spec = plainRecordPage(staticMetaObject, fieldRows(rows));
    return spec;
}

AntennaTable::AntennaTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
