// SPDX-License-Identifier: BSD-3-Clause
#include "zdatable.h"

const FieldTableSpec &ZDATable::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("Utc"), "", QT_TR_NOOP("UTC 时间")},
        {QT_TR_NOOP("Day"), "", QT_TR_NOOP("日")},
        {QT_TR_NOOP("Month"), "", QT_TR_NOOP("月")},
        {QT_TR_NOOP("Year"), "", QT_TR_NOOP("年")},
        {QT_TR_NOOP("Local zone description"), "", QT_TR_NOOP("当地时区描述，00 to +/- 13 小时")},
        {QT_TR_NOOP("Local zone minutes description"), "", QT_TR_NOOP("本地区分钟描述（00 to +59）")},
    };
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, fieldRows(rows))
            .columnWidth(1, 150)
            .columnWidth(2, 100);
    return spec;
}

ZDATable::ZDATable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
