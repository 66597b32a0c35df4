// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// GPSION: the GPS broadcast ionosphere model (Klobuchar alpha and beta terms).
class GpsionTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE GpsionTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

    // The twelve ionosphere rows, shared with the BDSION page.
    static QVector<FieldRow> ionosphereRows();

private:
    static const FieldTableSpec &pageSpec();
};
