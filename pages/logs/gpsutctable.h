// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// GPSUTC: the GPS time to UTC conversion parameters.
class GpsutcTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE GpsutcTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

    // The ten UTC rows, shared with the BDSUTC page.
    static QVector<FieldRow> utcRows();

private:
    static const FieldTableSpec &pageSpec();
};
