// SPDX-License-Identifier: BSD-3-Clause
#include "glt.h"

#include "bdt.h"

const FieldTableSpec &GLT::pageSpec()
{
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, BDT::interchangedSystemTimeRows())
            .replaceRow(1, {QT_TR_NOOP("day"), nullptr, QT_TR_NOOP("天数，无效则为空")})
            .replaceRow(2, {QT_TR_NOOP("tod"), nullptr, QT_TR_NOOP("天内秒（小数点后9位，ns精度），无效则为空")})
            // "GlONASS" with a lower-case l is the receiver's own spelling.
            .replaceRow(3, {QT_TR_NOOP("GloTotalSec"), nullptr, QT_TR_NOOP("GlONASS 总秒数")})
            .lastFieldOptional();
    return spec;
}

GLT::GLT(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
