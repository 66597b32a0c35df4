// SPDX-License-Identifier: BSD-3-Clause
#include "rtkdattable.h"

namespace {
const char *const kReserved = QT_TRANSLATE_NOOP("RtkdatTable", "保留");
const char *const kCovariance = QT_TRANSLATE_NOOP("RtkdatTable", "ECEF 位置协方差矩阵");
} // namespace

const ListPageSpec &RtkdatTable::pageSpec()
{
    static const ListPageSpec spec =
        ListPageSpec::log(staticMetaObject, {{QT_TR_NOOP("PRN")}, {QT_TR_NOOP("Amb")}, {QT_TR_NOOP("res")}})
            .leadingFields(
                {
                    {QT_TR_NOOP("sol status"), "", QT_TR_NOOP("解的状态")},
                    {QT_TR_NOOP("pos type"), "", QT_TR_NOOP("位置类型")},
                    {QT_TR_NOOP("rtk info"), "", QT_TR_NOOP("RTK 信息")},
                    {QT_TR_NOOP("#SVs"), "", QT_TR_NOOP("跟踪的卫星数")},
                    {QT_TR_NOOP("#solnSVs"), "", QT_TR_NOOP("使用的卫星数")},
                    {QT_TR_NOOP("#gbL1"), "", QT_TR_NOOP("使用单频解算的卫星数")},
                    {QT_TR_NOOP("#gbL1L2"), "", QT_TR_NOOP("使用双频或三频解算的卫星数 ")},
                    {QT_TR_NOOP("Reserved"), "", kReserved},
                    {QT_TR_NOOP("ext sol stat"), "", QT_TR_NOOP("扩展解的状态")},
                    {QT_TR_NOOP("Galileo sig\nmask"), "", QT_TR_NOOP("Galileo 使用的信号掩码")},
                    {QT_TR_NOOP("GPS,\nGLONASS and\nBDS sig mask"), "", QT_TR_NOOP("GPS, GLONASS 和 BDS 使用的\n信号掩码")},
                    {QT_TR_NOOP("Reserved"), "", kReserved},
                    {QT_TR_NOOP("Reserved"), "", kReserved},
                    {QT_TR_NOOP("Cxx"), "", kCovariance},
                    {QT_TR_NOOP("Cxy"), "", kCovariance},
                    {QT_TR_NOOP("Cxz"), "", kCovariance},
                    {QT_TR_NOOP("Cyx"), "", kCovariance},
                    {QT_TR_NOOP("Cyy"), "", kCovariance},
                    {QT_TR_NOOP("Cyz"), "", kCovariance},
                    {QT_TR_NOOP("Czx"), "", kCovariance},
                    {QT_TR_NOOP("Czy"), "", kCovariance},
                    {QT_TR_NOOP("Czz"), "", kCovariance},
                    {QT_TR_NOOP("Reserved"), "", kReserved},
                    {QT_TR_NOOP("Reserved"), "", kReserved},
                    {QT_TR_NOOP("Reserved"), "", kReserved},
                    {QT_TR_NOOP("Reserved"), "", kReserved},
                    {QT_TR_NOOP("Reserved"), "", kReserved},
                    {QT_TR_NOOP("Reserved"), "", kReserved},
                    {QT_TR_NOOP("ref PR"), "", QT_TR_NOOP("参考卫星 PRN")},
                    // Shown only: the satellites are counted from the fields that follow.
                    {QT_TR_NOOP("# SV"), "", QT_TR_NOOP("其余卫星总数")},
                },
                "tableWidget_1", "tableWidget_2")
            .rows(40)
            // A line shorter than the 30 solution fields fills only the rows it
            // reaches; the others keep their text and no satellite is listed.
            .rowFields(3, 30, 30)
            .blankOnAccept();
    return spec;
}

RtkdatTable::RtkdatTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : ListPage(pageSpec(), parent, introStr, treeParent)
{
}
