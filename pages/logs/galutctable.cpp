// SPDX-License-Identifier: BSD-3-Clause
#include "galutctable.h"

#include "plainrecordform.h"

const FieldTableSpec &GalutcTable::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("A0"), nullptr, QT_TR_NOOP("Galileo 时相对于 UTC 的钟差")},
        {QT_TR_NOOP("A1"), nullptr, QT_TR_NOOP("Galileo 时相对于 UTC 的钟速 D")},
        {QT_TR_NOOP("deltat ls"), nullptr, QT_TR_NOOP("新的闰秒生效前 Galileo 时相对于UTC 的累积闰秒改正数")},
        {QT_TR_NOOP("tot"), nullptr, QT_TR_NOOP("UTC 参数的参考时间")},
        {QT_TR_NOOP("utc wn"), nullptr, QT_TR_NOOP("UTC 参考周数")},
        {QT_TR_NOOP("ulWNlsf"), nullptr, QT_TR_NOOP("新的闰秒值生效 Galileo 周计数")},
        {QT_TR_NOOP("dn"), nullptr, QT_TR_NOOP("新的闰秒生效的周内日计数")},
        {QT_TR_NOOP("deltat lsf"), nullptr, QT_TR_NOOP("新的闰秒生效后 Galileo 时相对于UTC 的累积闰秒改正数")},
        {QT_TR_NOOP("dA0g"), nullptr, QT_TR_NOOP("Galileo时间系统与GPST系统转换参数常数项")},
        {QT_TR_NOOP("dA1g"), nullptr, QT_TR_NOOP("Galileo时间系统与GPST系统转换参数的1阶项")},
        {QT_TR_NOOP("ulT0g"), nullptr, QT_TR_NOOP("Galileo 时间系统与 GPST 系统转换参考周内秒")},
        {QT_TR_NOOP("ulWN0g"), nullptr, QT_TR_NOOP("Galileo 时间系统与 GPST 系统转换参考周计数")},
    };
    // Seven characters compared, as on the GPS page: intentional.
    static const FieldTableSpec spec = plainRecordPage(staticMetaObject, fieldRows(rows));
    return spec;
}

GalutcTable::GalutcTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
