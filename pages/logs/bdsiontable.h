// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// BDSION: the BDS broadcast ionosphere model, laid out as GPSION.
class BdsionTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE BdsionTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
