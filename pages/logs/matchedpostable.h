// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// MATCHEDPOS: the RTK position matched to base observations.
class MatchedposTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE MatchedposTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

    // Shared with the MATCHEDPOSH page, which differs only in row 5's description.
    static QVector<FieldRow> matchedPositionRows();

private:
    static const FieldTableSpec &pageSpec();
};
