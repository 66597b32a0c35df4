// SPDX-License-Identifier: BSD-3-Clause
#include "bestpostable.h"

// Rows 2 and 3 are crossed on purpose: "lat" is described as longitude and "lon" as
// latitude, as the receiver's documentation has them on these pages.
QVector<FieldRow> BestposTable::bestPositionRows()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("sol status"), "", nullptr},
        {QT_TR_NOOP("pos type"), "", nullptr},
        {QT_TR_NOOP("lat"), QT_TR_NOOP("deg"), QT_TR_NOOP("经度")},
        {QT_TR_NOOP("lon"), QT_TR_NOOP("deg"), QT_TR_NOOP("纬度")},
        {QT_TR_NOOP("hgt"), QT_TR_NOOP("m"), QT_TR_NOOP("海拔高")},
        {QT_TR_NOOP("undulation"), "", QT_TR_NOOP("大地水准面差距- 大地水准面和WGS84 椭球面之间的距离")},
        {QT_TR_NOOP("datum id"), "", QT_TR_NOOP("坐标系 ID 号，当前仅支持WGS84")},
        {QT_TR_NOOP("lat σ"), QT_TR_NOOP("m"), QT_TR_NOOP("纬度标准差")},
        {QT_TR_NOOP("lon σ"), QT_TR_NOOP("m"), QT_TR_NOOP("经度标准差")},
        {QT_TR_NOOP("hgt σ"), QT_TR_NOOP("m"), QT_TR_NOOP("高度标准差")},
        {QT_TR_NOOP("stn id"), "", QT_TR_NOOP("基站 ID")},
        {QT_TR_NOOP("diff_age"), QT_TR_NOOP("s"), QT_TR_NOOP("差分龄期")},
        {QT_TR_NOOP("sol_age"), QT_TR_NOOP("s"), QT_TR_NOOP("解的龄期")},
        {QT_TR_NOOP("SVs"), "", QT_TR_NOOP("跟踪的卫星数")},
        {QT_TR_NOOP("solnSVs"), "", QT_TR_NOOP("在解中使用的卫星数")},
        {QT_TR_NOOP("Reserved1"), "", QT_TR_NOOP("保留")},
        {QT_TR_NOOP("Reserved2"), "", QT_TR_NOOP("保留")},
        {QT_TR_NOOP("Reserved3"), "", QT_TR_NOOP("保留")},
        {QT_TR_NOOP("ext sol stat"), "", QT_TR_NOOP("扩展解的状态")},
        {QT_TR_NOOP("Galileo sig mask"), "", QT_TR_NOOP("Galileo 使用的信号掩码")},
        {QT_TR_NOOP("GPS, GLONASS and BDS sig mask"), "", QT_TR_NOOP("GPS, GLONASS 和 BDS 使用的信号掩码")},
    };
    return fieldRows(rows);
}

const FieldTableSpec &BestposTable::pageSpec()
{
    static const FieldTableSpec spec =
        FieldTableSpec::record(staticMetaObject, bestPositionRows())
            .layout(FormLayout::VBox, "verticalLayout", QMargins(6, 6, 3, 3))
            .window(1078, 798)
            .valuesAligned(Qt::AlignRight | Qt::AlignVCenter)
            .compactHeaderForm()
            // Placed but never filled: unlike its siblings this page shows no
            // status descriptions, on purpose.
            .statusCells(false);
    return spec;
}

BestposTable::BestposTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
