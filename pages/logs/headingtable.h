// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// HEADING and the maker's KVNHEADING: the dual-antenna heading solution.
class HeadingTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE HeadingTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

    // The seventeen heading rows, shared with the HEADING2 page.
    static QVector<FieldRow> headingRows();

private:
    static const FieldTableSpec &pageSpec();
};
