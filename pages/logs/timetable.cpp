// SPDX-License-Identifier: BSD-3-Clause
#include "timetable.h"

#include "plainrecordform.h"

const FieldTableSpec &TimeTable::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("clock status"), "", QT_TR_NOOP("时钟模型状态")},
        {QT_TR_NOOP("offset"), "", QT_TR_NOOP("相对于 GPS 时的接收机钟差")},
        {QT_TR_NOOP("Offset std "), QT_TR_NOOP("s"), QT_TR_NOOP("接收机钟差的标准差")},
        {QT_TR_NOOP("utc offset"), "", QT_TR_NOOP("GPS 时间到 UTC 时间的偏差")},
        {QT_TR_NOOP("utc year"), "", QT_TR_NOOP("UTC 年")},
        {QT_TR_NOOP("utc month"), "", QT_TR_NOOP("UTC 月")},
        {QT_TR_NOOP("utc day"), "", QT_TR_NOOP("UTC 天")},
        {QT_TR_NOOP("utc hour"), "", QT_TR_NOOP("UTC 小时")},
        {QT_TR_NOOP("utc min"), "", QT_TR_NOOP("UTC 分钟")},
        {QT_TR_NOOP("utc ms"), "", QT_TR_NOOP("UTC 毫秒")},
        {QT_TR_NOOP("utc status"), "", QT_TR_NOOP("UTC 状态")},
    };
    // The comma is part of the seven compared characters, so logs whose names only
    // begin with TIME are not taken.
    static const FieldTableSpec spec = plainRecordPage(staticMetaObject, fieldRows(rows));
    return spec;
}

TimeTable::TimeTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
