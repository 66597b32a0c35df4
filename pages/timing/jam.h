// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// $JAM: spoofing detection and the interference status words of six channels.
class JAM : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE JAM(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
