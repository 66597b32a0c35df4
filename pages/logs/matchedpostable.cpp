// SPDX-License-Identifier: BSD-3-Clause
#include "matchedpostable.h"

// Unlike the best-position pages, "lat" and "lon" are described the right way round
// here, and the standard deviations carry no unit. The unclosed parenthesis of row 5
// and the unfinished clause of row 20 are the receiver's texts, kept as they are.
QVector<FieldRow> MatchedposTable::matchedPositionRows()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("sol status"), "", QT_TR_NOOP("解算状态")},
        {QT_TR_NOOP("pos type"), "", QT_TR_NOOP("位置类型")},
        {QT_TR_NOOP("lat"), QT_TR_NOOP("deg"), QT_TR_NOOP("纬度")},
        {QT_TR_NOOP("lon"), QT_TR_NOOP("deg"), QT_TR_NOOP("经度")},
        {QT_TR_NOOP("hgt"), QT_TR_NOOP("m"), QT_TR_NOOP("海拔高")},
        {QT_TR_NOOP("undulation"), "", QT_TR_NOOP("大地水准面差距-大地水准面和WGS84椭球（米之间的距离")},
        {QT_TR_NOOP("datum id#"), "", QT_TR_NOOP("坐标系 ID")},
        {QT_TR_NOOP("lat σ"), "", QT_TR_NOOP("纬度标准差")},
        {QT_TR_NOOP("lon σ"), "", QT_TR_NOOP("经度标准差")},
        {QT_TR_NOOP("hgt σ"), "", QT_TR_NOOP("高度标准差")},
        {QT_TR_NOOP("stn id"), "", QT_TR_NOOP("基站 ID")},
        {QT_TR_NOOP("diff_age"), QT_TR_NOOP("s"), QT_TR_NOOP("差分龄期")},
        {QT_TR_NOOP("sol_age"), QT_TR_NOOP("s"), QT_TR_NOOP("解的龄期")},
        {QT_TR_NOOP("#SVs"), "", QT_TR_NOOP("跟踪的卫星数")},
        {QT_TR_NOOP("#solnSVs"), "", QT_TR_NOOP("使用的卫星数")},
        {QT_TR_NOOP("Reserved"), "", QT_TR_NOOP("保留")},
        {QT_TR_NOOP("Reserved"), "", QT_TR_NOOP("保留")},
        {QT_TR_NOOP("Reserved"), "", QT_TR_NOOP("保留")},
        {QT_TR_NOOP("ext sol stat"), "", QT_TR_NOOP("扩展解的状态")},
        {QT_TR_NOOP("Galileo sigmask"), "", QT_TR_NOOP("Galileo 使用的信号掩码")},
        {QT_TR_NOOP("GPS GLONASS and\nBDS sigmask"), "", QT_TR_NOOP("GPS, GLONASS 和 BDS 使用的信号掩码- 若为 0")},
    };
    return fieldRows(rows);
}

const FieldTableSpec &MatchedposTable::pageSpec()
{
    static const FieldTableSpec spec =
        FieldTableSpec::record(staticMetaObject, matchedPositionRows())
            .layout(FormLayout::HBox, "horizontalLayout", QMargins(6, 6, 3, 3))
            .window(714, 475)
            .valuesAligned(Qt::AlignHCenter | Qt::AlignVCenter)
            .statusCells(true);
    return spec;
}

MatchedposTable::MatchedposTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
