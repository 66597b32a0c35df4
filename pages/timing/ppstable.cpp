// SPDX-License-Identifier: BSD-3-Clause
#include "ppstable.h"

const FieldTableSpec &PPSTable::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("timeRef"), nullptr,
         QT_TR_NOOP("内部评估 1PPS 相位误差的时间参考：0：无参考时间 1：时间参考由实时定位解算 2：时间参考由定点授时解算")},
        {QT_TR_NOOP("phaseError"), nullptr, QT_TR_NOOP("前一秒 1PPS 相位误差，单位 0.1ns")},
        {QT_TR_NOOP("clockError"), nullptr, QT_TR_NOOP("当前使用系统与本地接收机时间的钟差，单位 0.1ns")},
        {QT_TR_NOOP("clkDrift"), nullptr, QT_TR_NOOP("时钟频偏，单位 0.1m/s")},
    };
    // Unlike the other timing sentences, a missing last field is not tolerated.
    static const FieldTableSpec spec = FieldTableSpec::sentence(staticMetaObject, fieldRows(rows));
    return spec;
}

PPSTable::PPSTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
