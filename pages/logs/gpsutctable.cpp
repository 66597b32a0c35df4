// SPDX-License-Identifier: BSD-3-Clause
#include "gpsutctable.h"

#include "plainrecordform.h"

QVector<FieldRow> GpsutcTable::utcRows()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("utc wn"), nullptr, QT_TR_NOOP("UTC 参考周数")},
        {QT_TR_NOOP("tot"), nullptr, QT_TR_NOOP("UTC 参数的参考时间")},
        {QT_TR_NOOP("A0"), nullptr, QT_TR_NOOP("GPST 相对于 UTC 的钟差")},
        {QT_TR_NOOP("A1"), nullptr, QT_TR_NOOP("GPST 相对于 UTC 的钟速")},
        {QT_TR_NOOP("wn lsf"), nullptr, QT_TR_NOOP("新的闰秒生效的周计数")},
        {QT_TR_NOOP("dn"), nullptr, QT_TR_NOOP("新的闰秒生效的周内日计数")},
        {QT_TR_NOOP("deltat ls"), nullptr, QT_TR_NOOP("新的闰秒生效前 GPST 相对于UTC 的累积闰秒改正数")},
        {QT_TR_NOOP("deltat lsf"), nullptr, QT_TR_NOOP("新的闰秒生效后 GPST 相对于UTC 的累积闰秒改正数")},
        {QT_TR_NOOP("deltat utc"), nullptr, QT_TR_NOOP("GPST 相对于 UTC 时间差")},
        {QT_TR_NOOP("reserved"), nullptr, QT_TR_NOOP("保留")},
    };
    return fieldRows(rows);
}

const FieldTableSpec &GpsutcTable::pageSpec()
{
    static const FieldTableSpec spec = plainRecordPage(staticMetaObject, utcRows());
    return spec;
}

GpsutcTable::GpsutcTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
