// SPDX-License-Identifier: BSD-3-Clause
#include "utc.h"

const FieldTableSpec &UTC::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("TimeQuality"), nullptr,
         QT_TR_NOOP("时间质量，精度级别如下: 0：时间未知 1：粗略（毫秒级精度） 2：外推(微秒级精度) 3：精确(3D正常定位或定点授时模式,纳秒级精度)")},
        {QT_TR_NOOP("year"), nullptr, QT_TR_NOOP("年")},
        {QT_TR_NOOP("month"), nullptr, QT_TR_NOOP("月")},
        {QT_TR_NOOP("day"), nullptr, QT_TR_NOOP("日")},
        {QT_TR_NOOP("hour"), nullptr, QT_TR_NOOP("时")},
        {QT_TR_NOOP("min"), nullptr, QT_TR_NOOP("分")},
        {QT_TR_NOOP("sec"), nullptr, QT_TR_NOOP("秒")},
        {QT_TR_NOOP("utcstd"), nullptr, QT_TR_NOOP("UTC标准0：USNO（GPS） 1：NTSC（BDS） 2：TBD（GAL） 3：SU（GLO）")},
    };
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, fieldRows(rows)).lastFieldOptional();
    return spec;
}

UTC::UTC(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
