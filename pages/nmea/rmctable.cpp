// SPDX-License-Identifier: BSD-3-Clause
#include "rmctable.h"

const FieldTableSpec &RMCTable::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("utc"), QT_TR_NOOP("hhmmss.ss"), QT_TR_NOOP("协调世界时")},
        // Its English keeps the manual's "Vaild".
        {QT_TR_NOOP("pos status"), "", QT_TR_NOOP("A-有效，V-无效")},
        // The trailing blank of "lat " is the receiver's own label.
        {QT_TR_NOOP("lat "), QT_TR_NOOP("ddmm.mmmmmmmm"), QT_TR_NOOP("Latitude")},
        {QT_TR_NOOP("lat dir"), "", QT_TR_NOOP("N-北纬，S-南纬")},
        {QT_TR_NOOP("lon"), QT_TR_NOOP("dddmm.mmmmmmmm"), QT_TR_NOOP("Longitude")},
        {QT_TR_NOOP("lon dir"), "", QT_TR_NOOP("E-东经，W-西经")},
        // "Groud" is kept as the receiver documents it; this text has no translation.
        {QT_TR_NOOP("speed Kn"), QT_TR_NOOP("knots（节）"), QT_TR_NOOP("Speed Over Groud")},
        {QT_TR_NOOP("track true"), QT_TR_NOOP("度"), QT_TR_NOOP("以真北为参考标准，沿顺时针方向至航向的角度")},
        {QT_TR_NOOP("date"), QT_TR_NOOP("ddmmyy"), QT_TR_NOOP("日月年")},
        {QT_TR_NOOP("mag var"), QT_TR_NOOP("度"), nullptr},
        {QT_TR_NOOP("var dir"), "", QT_TR_NOOP("E-东，W-西")},
        // The English lists an E (estimated) mode the Chinese text lacks; both kept as given.
        {QT_TR_NOOP("mode ind"), "", QT_TR_NOOP("A-单点模式，D-差分模式，F-RTK Float,M-手动输入模式，N-无定位，P-高精度模式，R-RTK Int,S-模拟器模式，V-模式无效")},
        {QT_TR_NOOP("nav status"), "", QT_TR_NOOP("S-安全，C-注意，U-危险，V-定位状态不可用")},
    };
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, fieldRows(rows))
            .lastFieldOptional()
            .columnWidth(1, 110);
    return spec;
}

RMCTable::RMCTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
