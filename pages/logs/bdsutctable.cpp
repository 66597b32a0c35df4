// SPDX-License-Identifier: BSD-3-Clause
#include "bdsutctable.h"

#include "gpsutctable.h"
#include "plainrecordform.h"

const FieldTableSpec &BdsutcTable::pageSpec()
{
    // Seven characters compared, as on the GPS page: intentional.
    static const FieldTableSpec spec = plainRecordPage(staticMetaObject, GpsutcTable::utcRows());
    return spec;
}

BdsutcTable::BdsutcTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
