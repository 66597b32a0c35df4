// SPDX-License-Identifier: BSD-3-Clause
#include "agrictable.h"

const FieldTableSpec &AgricTable::pageSpec()
{
    // The unit column stays empty although several descriptions name a range or a
    // unit; the status words of rows 8 and 9 are the numbers the receiver sends,
    // explained only by the static descriptions. "Xigema" is the log's own spelling.
    static const FieldRow rows[] = {
        {QT_TR_NOOP("GNSS"), nullptr, nullptr},
        {QT_TR_NOOP("length"), nullptr, QT_TR_NOOP("指令长度")},
        {QT_TR_NOOP("Year"), nullptr, QT_TR_NOOP("UTC 时间-年")},
        {QT_TR_NOOP("Month"), nullptr, QT_TR_NOOP("UTC 时间-月")},
        {QT_TR_NOOP("Day"), nullptr, QT_TR_NOOP("UTC 时间-日")},
        {QT_TR_NOOP("Hour"), nullptr, QT_TR_NOOP("UTC 时间-时")},
        {QT_TR_NOOP("Minute"), nullptr, QT_TR_NOOP("UTC 时间-分")},
        {QT_TR_NOOP("Second"), nullptr, QT_TR_NOOP("UTC 时间-秒")},
        {QT_TR_NOOP("RTK Status"), nullptr, QT_TR_NOOP("流动站定位状态,0：无效解；1：单点定位解；2：伪距差分；4：固定解；5：浮动解；")},
        {QT_TR_NOOP("Heading Status"), nullptr, QT_TR_NOOP("主从天线 Heading解状态:0：无效解；4：固定解；5：浮动解；")},
        {QT_TR_NOOP("Num GPS Sta"), nullptr, QT_TR_NOOP("参与解算 GPS 卫星数")},
        {QT_TR_NOOP("Num BDS Sta"), nullptr, QT_TR_NOOP("参与解算北斗卫星数")},
        {QT_TR_NOOP("Num GLO Sta"), nullptr, QT_TR_NOOP("参与解算 GLONASS卫星数")},
        {QT_TR_NOOP("Baseline_N"), nullptr, QT_TR_NOOP("基站到流动站基线向量，北方向分量")},
        {QT_TR_NOOP("Baseline_E"), nullptr, QT_TR_NOOP("基站到流动站基线向量，东方向分量")},
        {QT_TR_NOOP("Baseline_U"), nullptr, QT_TR_NOOP("基站到流动站基线向量，天顶方向分量")},
        {QT_TR_NOOP("Baseline_NStd"), nullptr, QT_TR_NOOP("基站到流动站基线向量，北方向分量标准差")},
        {QT_TR_NOOP("Baseline_EStd "), nullptr, QT_TR_NOOP("基站到流动站基线向量，东方向分量标准差")},
        {QT_TR_NOOP("Baseline_UStd"), nullptr, QT_TR_NOOP("基站到流动站基线向量，天顶方向分量标准差")},
        {QT_TR_NOOP("Heading"), nullptr, QT_TR_NOOP("航向角")},
        {QT_TR_NOOP("Pitch"), nullptr, QT_TR_NOOP("俯仰角")},
        {QT_TR_NOOP("Roll"), nullptr, QT_TR_NOOP("横滚角")},
        {QT_TR_NOOP("Speed"), nullptr, QT_TR_NOOP("速度大小，标量")},
        {QT_TR_NOOP("Velocity of\nNorth "), nullptr, QT_TR_NOOP("北方向速度")},
        {QT_TR_NOOP("Velocity of East"), nullptr, QT_TR_NOOP("东方向速度")},
        {QT_TR_NOOP("Velocity of Up"), nullptr, QT_TR_NOOP("天顶方向速度")},
        {QT_TR_NOOP("Xigema_Vx"), nullptr, QT_TR_NOOP("北方向速度标准差")},
        {QT_TR_NOOP("Xigema_Vy"), nullptr, QT_TR_NOOP("东方向速度标准差")},
        {QT_TR_NOOP("Xigema_Vz"), nullptr, QT_TR_NOOP("天顶方向速度标准差")},
        {QT_TR_NOOP("lat"), nullptr, QT_TR_NOOP("流动站纬度：-90~90度")},
        {QT_TR_NOOP("lon"), nullptr, QT_TR_NOOP("流动站经度：-180~180度")},
        {QT_TR_NOOP("alt"), nullptr, QT_TR_NOOP("流动站高程")},
        {QT_TR_NOOP("ECEF_X"), nullptr, QT_TR_NOOP("ECEF 坐标系下的 X")},
        {QT_TR_NOOP("ECEF_Y"), nullptr, QT_TR_NOOP("ECEF 坐标系下的 Y")},
        {QT_TR_NOOP("ECEF_Z"), nullptr, QT_TR_NOOP("ECEF 坐标系下的 Z")},
        {QT_TR_NOOP("Xigema_lat"), nullptr, QT_TR_NOOP("纬度标准差")},
        {QT_TR_NOOP("Xigema_lon"), nullptr, QT_TR_NOOP("经度标准差")},
        {QT_TR_NOOP("Xigema_alt"), nullptr, QT_TR_NOOP("高程标准差")},
        {QT_TR_NOOP("Xigema_ECEF\n_X"), nullptr, QT_TR_NOOP("ECEF_X 标准差")},
        {QT_TR_NOOP("Xigema_ECEF\n_Y"), nullptr, QT_TR_NOOP("ECEF_Y 标准差")},
        {QT_TR_NOOP("Xigema_ECEF\n_Z "), nullptr, QT_TR_NOOP("ECEF_Z 标准差")},
        {QT_TR_NOOP("BASE_lat"), nullptr, QT_TR_NOOP("基准站纬度：-90~90度")},
        {QT_TR_NOOP("BASE_lon"), nullptr, QT_TR_NOOP("基准站经度：-180~180 度")},
        {QT_TR_NOOP("BASE_alt"), nullptr, QT_TR_NOOP("基准站高程")},
        {QT_TR_NOOP("SEC_lat"), nullptr, QT_TR_NOOP("副天线纬度：-90~90度")},
        {QT_TR_NOOP("SEC_lon"), nullptr, QT_TR_NOOP("副天线经度：-180~180 度")},
        {QT_TR_NOOP("SEC_alt"), nullptr, QT_TR_NOOP("副天线高程")},
        {QT_TR_NOOP("GPS_WEEK_SECOND"), nullptr, QT_TR_NOOP("GPS 周内毫秒")},
        {QT_TR_NOOP("Diffage"), nullptr, QT_TR_NOOP("差分龄期")},
        {QT_TR_NOOP("Speed_Headin\ng"), nullptr, QT_TR_NOOP("速度的方向")},
        {QT_TR_NOOP("Undulation"), nullptr, QT_TR_NOOP("高程异常值")},
        {QT_TR_NOOP("Remain_float_3"), nullptr, QT_TR_NOOP("保留")},
        {QT_TR_NOOP("Remain_float_4"), nullptr, QT_TR_NOOP("保留")},
        {QT_TR_NOOP("Num GAL Sta"), nullptr, QT_TR_NOOP("Galileo 卫星数")},
        {QT_TR_NOOP("Remain_char_2"), nullptr, QT_TR_NOOP("保留")},
        {QT_TR_NOOP("Remain_char_3"), nullptr, QT_TR_NOOP("保留")},
        {QT_TR_NOOP("Remain_char_4"), nullptr, QT_TR_NOOP("保留")},
    };
    static const FieldTableSpec spec =
        FieldTableSpec::record(staticMetaObject, fieldRows(rows))
            .layout(FormLayout::Grid, "gridLayout", QMargins(6, 6, 3, 3))
            .window(632, 445)
            .valuesAligned(Qt::AlignHCenter | Qt::AlignVCenter)
            .adjustToContents();
    return spec;
}

AgricTable::AgricTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
