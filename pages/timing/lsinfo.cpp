// SPDX-License-Identifier: BSD-3-Clause
#include "lsinfo.h"

const FieldTableSpec &LSINFO::pageSpec()
{
    // The week and second rows repeat the validity flag's description on purpose (the
    // second row's copy lacks the blank before "1", also on purpose).
    static const char *const validFlag = QT_TR_NOOP("闰秒信息有效标志 0: 无效 1: 有效");
    static const FieldRow rows[] = {
        {QT_TR_NOOP("system"), nullptr, QT_TR_NOOP("输出闰秒信息所对应的系统 GPS 0 BDS:1 GAL:2 GLO:3")},
        {QT_TR_NOOP("flag"), nullptr, validFlag},
        {QT_TR_NOOP("week"), nullptr, validFlag},
        {QT_TR_NOOP("sow"), nullptr, QT_TR_NOOP("闰秒信息有效标志 0: 无效1: 有效")},
        {QT_TR_NOOP("currLeapSec"), nullptr, QT_TR_NOOP("当前闰秒")},
        {QT_TR_NOOP("leapSecAdj"), nullptr, QT_TR_NOOP("发生闰秒调整之后的闰秒值")},
    };
    // Only the name is compared, not the comma after it.
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, fieldRows(rows)).lastFieldOptional();
    return spec;
}

LSINFO::LSINFO(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
