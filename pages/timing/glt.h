// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// $GLOTIME: GLONASS time (day and time of day) and its relation to GPS time.
class GLT : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE GLT(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
