// SPDX-License-Identifier: BSD-3-Clause
#include "rawimuxtable.h"

const FieldTableSpec &RawimuxTable::pageSpec()
{
    // The log sends its axes as Z, -Y, X. The Y values are shown with the sign the
    // receiver sent; the minus lives only in the labels.
    static const FieldRow rows[] = {
        {QT_TR_NOOP("IMU 错误"), nullptr, QT_TR_NOOP("简化的 IMU 错误标志01-IMU 错误,00-IMU 正常\n如果出现了 IMU 错误，检查 IMU\n状态数据域查看详情，此数据域输出为十六进制")},
        {QT_TR_NOOP("IMU 类型"), nullptr, QT_TR_NOOP("IMU 类型标志，")},
        {QT_TR_NOOP("Week"), nullptr, QT_TR_NOOP("GNSS 周")},
        {QT_TR_NOOP("Seconds Into Week "), nullptr, QT_TR_NOOP("周秒")},
        {QT_TR_NOOP("IMU Status"), nullptr, QT_TR_NOOP("IMU状态")},
        {QT_TR_NOOP("Z Accel Output"), nullptr, QT_TR_NOOP("速度沿 Z 轴变化")},
        {QT_TR_NOOP("- (Y Accel Output)"), nullptr, QT_TR_NOOP("- (速度沿 Y 轴变化) ")},
        {QT_TR_NOOP("X Accel Output"), nullptr, QT_TR_NOOP("速度沿X轴变化")},
        {QT_TR_NOOP("Z Gyro Output"), nullptr, QT_TR_NOOP("沿 Z 轴右手螺旋的角度变化量")},
        {QT_TR_NOOP("- (Y Gyro Output)"), nullptr, QT_TR_NOOP("- (沿 Y 轴右手螺旋的角度变化量)")},
        {QT_TR_NOOP("X Gyro Output"), nullptr, QT_TR_NOOP("沿 X 轴右手螺旋的角度变化量。")},
    };
    static const FieldTableSpec spec =
        FieldTableSpec::record(staticMetaObject, fieldRows(rows))
            .layout(FormLayout::HBox, "horizontalLayout", QMargins(6, 6, 3, 3))
            .window(400, 300)
            .valuesAligned(Qt::AlignHCenter | Qt::AlignVCenter);
    return spec;
}

RawimuxTable::RawimuxTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
