// SPDX-License-Identifier: BSD-3-Clause
#include "gpt.h"

#include "bdt.h"

namespace {
// The GPS sentence has no separate GPS week and second: the first three rows and
// the leap second of the other system-time pages, with the first and last
// descriptions interchanged as there.
QVector<FieldRow> gpsTimeRows()
{
    const QVector<FieldRow> shared = BDT::interchangedSystemTimeRows();
    QVector<FieldRow> rows = shared.mid(0, 3);
    rows.append({QT_TRANSLATE_NOOP("GPT", "GpsTotalSec"), nullptr,
                 QT_TRANSLATE_NOOP("GPT", "GPS 总秒数，从 GPS 的 1980 年开始的总秒数")});
    rows.append(shared.at(6));
    rows.append({QT_TRANSLATE_NOOP("GPT", "LsfFlag"), nullptr, shared.last().description});
    return rows;
}
} // namespace

const FieldTableSpec &GPT::pageSpec()
{
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, gpsTimeRows()).lastFieldOptional();
    return spec;
}

GPT::GPT(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}
