// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

// A "#" log page whose log documents no form of its own is laid out as the generic
// record page: a vertical box with the best-position page's margins, 1078 × 798,
// values right-aligned and vertically centred.
inline FieldTableSpec plainRecordPage(const QMetaObject &page, QVector<FieldRow> rows)
{
    return FieldTableSpec::record(page, std::move(rows))
        .layout(FormLayout::VBox, "verticalLayout", QMargins(6, 6, 3, 3))
        .window(1078, 798)
        .valuesAligned(Qt::AlignRight | Qt::AlignVCenter);
}
