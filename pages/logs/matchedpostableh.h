// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// MATCHEDPOSH: the high-precision matched RTK position.
class MatchedposTableh : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE MatchedposTableh(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
