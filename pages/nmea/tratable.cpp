// SPDX-License-Identifier: BSD-3-Clause
#include "tratable.h"

const FieldTableSpec &TRAtable::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("utc"), QT_TR_NOOP("hhmmss.ss"), QT_TR_NOOP("UTC 时间")},
        {QT_TR_NOOP("heading"), QT_TR_NOOP("hhh.hh"), QT_TR_NOOP("方向角，0~360 度")},
        {QT_TR_NOOP("pitch"), QT_TR_NOOP("ppp.pp"), QT_TR_NOOP("俯仰角：-90~90 度")},
        {QT_TR_NOOP("roll"), QT_TR_NOOP("rrr.rr"), QT_TR_NOOP("横滚角：-90~90 度")},
        {QT_TR_NOOP("Sol status"), QT_TR_NOOP("q"), QT_TR_NOOP("GPS 质量指示符0 = 定位不可用或无效 1 = 单点定位 2 = 伪距差分或 SBAS 定位 4 = RTK 固定解 5 =RTK 浮点解 6 = 惯导定位")},
        {QT_TR_NOOP("Sat num"), QT_TR_NOOP("n"), QT_TR_NOOP("卫星数")},
        {QT_TR_NOOP("Age"), QT_TR_NOOP("dd.dd"), QT_TR_NOOP("差分延迟")},
        {QT_TR_NOOP("Station ID"), "", QT_TR_NOOP("基站号")},
    };
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, fieldRows(rows))
            .lastFieldOptional();
    return spec;
}

TRAtable::TRAtable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
