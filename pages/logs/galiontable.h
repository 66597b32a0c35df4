// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// GALION: the Galileo ionosphere model and disturbance flags.
class Galiontable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE Galiontable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};
