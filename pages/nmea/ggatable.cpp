// SPDX-License-Identifier: BSD-3-Clause
#include "ggatable.h"

const FieldTableSpec &GGATable::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("utc"), QT_TR_NOOP("hhmmss.ss"), QT_TR_NOOP("协调世界时")},
        {QT_TR_NOOP("lat"), QT_TR_NOOP("ddmm.mmmmmmmm"), QT_TR_NOOP("Latitude")},
        {QT_TR_NOOP("lat dir"), "", QT_TR_NOOP("N-北纬，S-南纬")},
        {QT_TR_NOOP("lon"), QT_TR_NOOP("dddmm.mmmmmmmm"), QT_TR_NOOP("Longitude")},
        {QT_TR_NOOP("lon dir"), "", QT_TR_NOOP("E-东经，W-西经")},
        // The English of this row keeps the receiver manual's "vaild" and double blank.
        {QT_TR_NOOP("qual"), "", QT_TR_NOOP("0-无效,1-定位有效,2-差分定位有效,3-PPS模式,定位有效,4-RTK模式,5-浮动RTK,6-估算模式,7-手动输入模式,8-模拟器模式")},
        {QT_TR_NOOP("# sats"), "", QT_TR_NOOP("用于解算的卫星数")},
        {QT_TR_NOOP("hdop"), "", QT_TR_NOOP("水平精度因子")},
        {QT_TR_NOOP("alt"), "", QT_TR_NOOP("基于参考海拔高度")},
        {QT_TR_NOOP("a-units"), QT_TR_NOOP("m"), QT_TR_NOOP("M=Meters")},
        {QT_TR_NOOP("undulation"), "", QT_TR_NOOP("等于椭球高-海平面高程")},
        {QT_TR_NOOP("u-units"), QT_TR_NOOP("m"), QT_TR_NOOP("M=Meters")},
        {QT_TR_NOOP("age"), "", QT_TR_NOOP("差分数据龄期")},
        {QT_TR_NOOP("stn ID"), "", QT_TR_NOOP("差分基站ID")},
    };
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, fieldRows(rows))
            .lastFieldOptional()
            .resizeColumnsToContents()
            .columnWidth(1, 120)
            .rowHeight(49);
    return spec;
}

GGATable::GGATable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
