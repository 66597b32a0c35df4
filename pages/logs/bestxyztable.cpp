// SPDX-License-Identifier: BSD-3-Clause
#include "bestxyztable.h"

const FieldTableSpec &BestxyzTable::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("sol status"), "", QT_TR_NOOP("解状态")},
        {QT_TR_NOOP("pos type"), "", QT_TR_NOOP("位置类型")},
        {QT_TR_NOOP("P-X"), QT_TR_NOOP("m"), QT_TR_NOOP("X 轴坐标")},
        {QT_TR_NOOP("P-Y"), QT_TR_NOOP("m"), QT_TR_NOOP("Y 轴坐标")},
        {QT_TR_NOOP("P-Z"), QT_TR_NOOP("m"), QT_TR_NOOP("Z 轴坐标")},
        {QT_TR_NOOP("P-X σ"), QT_TR_NOOP("m"), QT_TR_NOOP("X 轴坐标标准差")},
        {QT_TR_NOOP("P-Y σ"), QT_TR_NOOP("m"), QT_TR_NOOP("Y 轴坐标标准差")},
        {QT_TR_NOOP("P-Z σ"), QT_TR_NOOP("m"), QT_TR_NOOP("Z 轴坐标标准差")},
        {QT_TR_NOOP("V-sol status"), "", QT_TR_NOOP("解的状态")},
        {QT_TR_NOOP("vel type"), "", QT_TR_NOOP("速度类型")},
        {QT_TR_NOOP("V-X"), QT_TR_NOOP("m/s"), QT_TR_NOOP("X 轴速度")},
        {QT_TR_NOOP("V-Y"), QT_TR_NOOP("m/s"), QT_TR_NOOP("Y 轴速度")},
        {QT_TR_NOOP("V-Z"), QT_TR_NOOP("m/s"), QT_TR_NOOP("Z 轴速度")},
        {QT_TR_NOOP("V-X σ"), QT_TR_NOOP("m/s"), QT_TR_NOOP("X 轴速度标准差")},
        {QT_TR_NOOP("V-Y σ"), QT_TR_NOOP("m/s"), QT_TR_NOOP("Y 轴速度标准差")},
        {QT_TR_NOOP("V-Z σ"), QT_TR_NOOP("m/s"), QT_TR_NOOP("Z 轴速度标准差")},
        {QT_TR_NOOP("stn ID "), "", QT_TR_NOOP("基站 ID")},
        {QT_TR_NOOP("V-latency"), "", QT_TR_NOOP("根据速度时标计算的延迟值，以秒为单位。用历元时间减去延迟可得到更准确的速度结果。")},
        {QT_TR_NOOP("diff_age"), QT_TR_NOOP("s"), QT_TR_NOOP("差分龄期")},
        {QT_TR_NOOP("sol_age"), QT_TR_NOOP("s"), QT_TR_NOOP("解的龄期")},
        {QT_TR_NOOP("#SVs"), "", QT_TR_NOOP("跟踪的卫星数")},
        {QT_TR_NOOP("#solnSVs"), "", QT_TR_NOOP("在解中使用的卫星数")},
        {QT_TR_NOOP("#ggL1"), "", QT_TR_NOOP("L1/G1/B1 信号参与解算的卫星数")},
        {QT_TR_NOOP("#solnMultiSVs"), "", QT_TR_NOOP("L1/G1/B1/E1 信号参与解算的卫星\n数")},
        {QT_TR_NOOP("Reserved"), "", QT_TR_NOOP("保留")},
        {QT_TR_NOOP("ext sol stat"), "", QT_TR_NOOP("扩展解的状态")},
        {QT_TR_NOOP("Galileo sig mask"), "", QT_TR_NOOP("Galileo 使用的信号掩码")},
        {QT_TR_NOOP("GPS,GLONASS and BDS sig mask"), "", QT_TR_NOOP("GPS, GLONASS 和 BDS 使用的信号掩码")},
    };
    // Only the position status and type (rows 0 and 1) are described at parse time;
    // the velocity status and type of rows 8 and 9 stay raw beside their static
    // texts, on purpose.
    static const FieldTableSpec spec =
        FieldTableSpec::record(staticMetaObject, fieldRows(rows))
            .layout(FormLayout::HBox, "horizontalLayout", QMargins(6, 6, 3, 3))
            .window(602, 417)
            .valuesAligned(Qt::AlignRight | Qt::AlignVCenter)
            .statusCells(true);
    return spec;
}

BestxyzTable::BestxyzTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
