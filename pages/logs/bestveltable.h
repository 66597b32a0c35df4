// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// BESTVEL: the receiver's best available velocity.
class BestvelTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE BestvelTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

    // The page of a velocity log like this one whose vertical-speed description
    // runs on one line: the PSRVEL and TDIFVEL pages.
    static FieldTableSpec velocityPage(const QMetaObject &page);

private:
    static QVector<FieldRow> velocityRows();
    static FieldTableSpec velocityForm(FieldTableSpec spec);
    static const FieldTableSpec &pageSpec();
};
