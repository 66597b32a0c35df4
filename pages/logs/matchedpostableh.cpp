// SPDX-License-Identifier: BSD-3-Clause
#include "matchedpostableh.h"

#include "matchedpostable.h"

const FieldTableSpec &MatchedposTableh::pageSpec()
{
    static const FieldTableSpec spec =
        FieldTableSpec::record(staticMetaObject, MatchedposTable::matchedPositionRows())
            // The stray blanks and the line break are the receiver's own text.
            .replaceRow(5, {QT_TR_NOOP("undulation"), "", QT_TR_NOOP("大地水准面差距 - 大 地 水准 面 和\nWGS84 椭球面之间的距离")})
            .layout(FormLayout::HBox, "horizontalLayout", QMargins(6, 6, 3, 3))
            .window(400, 300)
            .valuesAligned(Qt::AlignHCenter | Qt::AlignVCenter)
            .statusCells(true);
    return spec;
}

MatchedposTableh::MatchedposTableh(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
