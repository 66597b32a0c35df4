// SPDX-License-Identifier: BSD-3-Clause
#include "gpsiontable.h"

#include "plainrecordform.h"

QVector<FieldRow> GpsionTable::ionosphereRows()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("a0"), nullptr, QT_TR_NOOP("Alpha 参数常数项")},
        {QT_TR_NOOP("a1"), nullptr, QT_TR_NOOP("Alpha 参数的 1 阶项")},
        {QT_TR_NOOP("a2"), nullptr, QT_TR_NOOP("Alpha 参数的2 阶项")},
        {QT_TR_NOOP("a3"), nullptr, QT_TR_NOOP("Alpha 参数的 3 阶项")},
        {QT_TR_NOOP("b0"), nullptr, QT_TR_NOOP("Beta 参数的常数项")},
        {QT_TR_NOOP("b1"), nullptr, QT_TR_NOOP("Beta 参数的 1 阶项")},
        {QT_TR_NOOP("b2"), nullptr, QT_TR_NOOP("Beta 参数的 2 阶项")},
        {QT_TR_NOOP("b3"), nullptr, QT_TR_NOOP("Beta 参数的 3 阶项")},
        {QT_TR_NOOP("usSVID"), nullptr, QT_TR_NOOP("解出电离层参数的卫星号")},
        {QT_TR_NOOP("usWeek"), nullptr, QT_TR_NOOP("解出电离层参数时的时间对应的GPS 周")},
        {QT_TR_NOOP("ulSec"), nullptr, QT_TR_NOOP("解除电离层参数时的时间对应的GPS 秒")},
        {QT_TR_NOOP("reserved"), nullptr, QT_TR_NOOP("保留")},
    };
    return fieldRows(rows);
}

const FieldTableSpec &GpsionTable::pageSpec()
{
    static const FieldTableSpec spec = plainRecordPage(staticMetaObject, ionosphereRows());
    return spec;
}

GpsionTable::GpsionTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
