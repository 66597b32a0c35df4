#include "headingtable2.h"

#include "headingtable.h"

const FieldTableSpec &HeadingTable2::pageSpec()
{
    // Eleven characters are compared: under any other label the ten-character
    // "#HEADINGA," never matches, and "#KVNHEADING" also takes KVNHEADING records.
    // Both are intentional and kept.
    static const FieldTableSpec spec =
        FieldTableSpec::record(staticMetaObject, "#HEADINGA,", HeadingTable::headingRows())
            .replaceRow(16, {QT_TR_NOOP("GPS GLONASS and\nBDS sigmask"), "", QT_TR_NOOP("GPS, GLONASS 和 BDS 使用的信号掩码")})
            .headerFor("Heading2", "#HEADING2A,")
            .headerFor("KvnHeading2", "#KVNHEADING")
            .comparedLength(11)
            .layout(FormLayout::HBox, "horizontalLayout", QMargins(6, 6, 3, 3))
            .window(500, 389)
            .valuesAligned(Qt::AlignRight | Qt::AlignVCenter)
            .statusCells(true);
    return spec;
}

HeadingTable2::HeadingTable2(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
