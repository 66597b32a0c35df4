// SPDX-License-Identifier: BSD-3-Clause
#include "bdsiontable.h"

#include "gpsiontable.h"
#include "plainrecordform.h"

const FieldTableSpec &BdsionTable::pageSpec()
{
    // Seven characters compared, as on the GPS page: intentional.
    static const FieldTableSpec spec = plainRecordPage(staticMetaObject, GpsionTable::ionosphereRows());
    return spec;
}

BdsionTable::BdsionTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
