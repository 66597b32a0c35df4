// SPDX-License-Identifier: BSD-3-Clause
#include "bdsephemtable.h"

const EphemerisSpec &BdsephemTable::pageSpec()
{
    // Both age-of-data columns are headed "AODE", as they always have been.
    static const EphemerisSpec spec =
        EphemerisSpec::log(staticMetaObject,
                           {"PRN", "Tow", "Health", "AODE", "AODE", "Week", "Z Week", "Toe", "A", "ΔN", "M0",
                            "Ecc", "ω", "Cuc", "Cus", "crc", "crs", "cic", "cis", "I0", "IDOT", "Ω0", "Ω dot",
                            "AODC", "toc", "tgd1", "tgd2", "af0", "af1", "af2", "AS", "N", "URA"})
            .rows(63, 63);
    return spec;
}

BdsephemTable::BdsephemTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : EphemerisPage(pageSpec(), parent, introStr, treeParent)
{
}
