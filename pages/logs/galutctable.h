// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// GALUTC: the Galileo time to UTC and GPS conversion parameters.
class GalutcTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE GalutcTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
