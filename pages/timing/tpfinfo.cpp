// SPDX-License-Identifier: BSD-3-Clause
#include "tpfinfo.h"

const FieldTableSpec &tpfinfo::pageSpec()
{
    // The longitude row repeats the latitude description on purpose.
    static const char *const meanLatitude = QT_TR_NOOP("当前优化位置纬度，北纬为正，南纬为负");
    static const FieldRow rows[] = {
        {QT_TR_NOOP("status"), nullptr,
         QT_TR_NOOP("当前的授时模式，包含位置优化状态\n"
                    "0：当前配置为单点实时定位模式\n"
                    "1：外部配置为定点模式，定点位置是外部输入\n"
                    "2：正在优化\n"
                    "3：已完成，进入定点授时模式\n")},
        {QT_TR_NOOP("posOptTime"), QT_TR_NOOP("s"), QT_TR_NOOP("已经过去的优化收敛时间，单位秒")},
        {QT_TR_NOOP("meanV"), QT_TR_NOOP("cm"), QT_TR_NOOP("当前优化位置的3D标准差，单位厘米")},
        {QT_TR_NOOP("meanLat"), QT_TR_NOOP("°"), meanLatitude},
        {QT_TR_NOOP("meanLon"), QT_TR_NOOP("°"), meanLatitude},
        {QT_TR_NOOP("meanHae"), QT_TR_NOOP("m"), QT_TR_NOOP("当前优化位置高程")},
    };
    // Compared from index 3 like an NMEA sentence: the two characters after '$' are
    // not examined (kept on purpose).
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, fieldRows(rows)).lastFieldOptional();
    return spec;
}

tpfinfo::tpfinfo(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
