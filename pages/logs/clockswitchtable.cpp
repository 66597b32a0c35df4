#include "clockswitchtable.h"

#include "plainrecordform.h"

const FieldTableSpec &ClockswitchTable::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("Status"), nullptr, QT_TR_NOOP("时钟类型 1 = 内钟 0 = 外钟,默认为内钟")},
    };
    // The receiver writes this log's name in mixed case; the comparison stays
    // case-sensitive, so an all-capitals header is not taken. Intentional.
    static const FieldTableSpec spec = plainRecordPage(staticMetaObject, "#ClockSwitchA,", fieldRows(rows));
    return spec;
}

ClockswitchTable::ClockswitchTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
