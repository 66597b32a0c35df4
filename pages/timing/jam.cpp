// SPDX-License-Identifier: BSD-3-Clause
#include "jam.h"

const FieldTableSpec &JAM::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("GPS WeekNumber"), nullptr, QT_TR_NOOP("GPS Week number")},
        {QT_TR_NOOP("GPS Time"), nullptr, QT_TR_NOOP("GPS 周内秒，单位：s")},
        {QT_TR_NOOP("decpStatus"), nullptr,
         QT_TR_NOOP("欺骗信号检测状态 0：欺骗信号检测未被触发 1：轻微欺骗 2：严重欺骗")},
        {QT_TR_NOOP("decpType"), nullptr, QT_TR_NOOP("软件暂未实现")},
        {QT_TR_NOOP("Chan1Stat1"), nullptr, QT_TR_NOOP("通道1干扰检测状态1")},
        {QT_TR_NOOP("Chan1Stat2"), nullptr, QT_TR_NOOP("通道1干扰检测状态2")},
        {QT_TR_NOOP("Chan1Stat3"), nullptr, QT_TR_NOOP("通道1干扰检测状态3")},
        {QT_TR_NOOP("Chan2Stat1"), nullptr, QT_TR_NOOP("通道2干扰检测状态1")},
        {QT_TR_NOOP("Chan2Stat2"), nullptr, QT_TR_NOOP("通道2干扰检测状态2")},
        {QT_TR_NOOP("Chan2Stat3"), nullptr, QT_TR_NOOP("通道2干扰检测状态3")},
        {QT_TR_NOOP("Chan3Stat1"), nullptr, QT_TR_NOOP("通道3干扰检测状态1")},
        {QT_TR_NOOP("Chan3Stat2"), nullptr, QT_TR_NOOP("通道3干扰检测状态2")},
        {QT_TR_NOOP("Chan3Stat3"), nullptr, QT_TR_NOOP("通道3干扰检测状态3")},
        {QT_TR_NOOP("Chan4Stat1"), nullptr, QT_TR_NOOP("通道4干扰检测状态1")},
        {QT_TR_NOOP("Chan4Stat2"), nullptr, QT_TR_NOOP("通道4干扰检测状态2")},
        {QT_TR_NOOP("Chan4Stat3"), nullptr, QT_TR_NOOP("通道4干扰检测状态3")},
        {QT_TR_NOOP("Chan5Stat1"), nullptr, QT_TR_NOOP("通道5干扰检测状态1")},
        {QT_TR_NOOP("Chan5Stat2"), nullptr, QT_TR_NOOP("通道5干扰检测状态2")},
        {QT_TR_NOOP("Chan5Stat3"), nullptr, QT_TR_NOOP("通道5干扰检测状态3")},
        {QT_TR_NOOP("Chan6Stat1"), nullptr, QT_TR_NOOP("通道6干扰检测状态1")},
        {QT_TR_NOOP("Chan6Stat2"), nullptr, QT_TR_NOOP("通道6干扰检测状态2")},
        {QT_TR_NOOP("Chan6Stat3"), nullptr, QT_TR_NOOP("通道6干扰检测状态3")},
    };
    // Only "JAM" is compared, so any sentence whose name begins with JAM is taken.
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, fieldRows(rows)).lastFieldOptional();
    return spec;
}

JAM::JAM(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
