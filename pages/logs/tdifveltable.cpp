#include "tdifveltable.h"

#include "bestveltable.h"

const FieldTableSpec &TdifvelTable::pageSpec()
{
    static const FieldTableSpec spec =
        FieldTableSpec::record(staticMetaObject, "#TDIFVELA,", BestvelTable::velocityRows())
            .replaceRow(6, {QT_TR_NOOP("vert spd"), QT_TR_NOOP("m/s"), QT_TR_NOOP("垂直速度，m/s，正值表示高度增加（向上），负值表示高度下降（向下）")})
            .layout(FormLayout::HBox, "horizontalLayout", QMargins(6, 6, 3, 3))
            .window(654, 605)
            .valuesAligned(Qt::AlignRight | Qt::AlignVCenter)
            .statusCells(true);
    return spec;
}

TdifvelTable::TdifvelTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
