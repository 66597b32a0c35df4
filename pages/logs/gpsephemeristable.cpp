// SPDX-License-Identifier: BSD-3-Clause
#include "gpsephemeristable.h"

const EphemerisSpec &GpsephemerisTable::pageSpec()
{
    static const EphemerisSpec spec =
        EphemerisSpec::log(staticMetaObject,
                           {"Prn", "tow", "health", "IODE1", "IODE2", "Week", "Z Week", "Toe", "A", "ΔN", "M0",
                            "Ecc", "ω", "cuc", "cus", "crc", "crs", "cic", "cis", "I0", "IDOT", "Ω0", "Ω dot",
                            "iodc", "toc", "tgd", "af0", "af1", "af2", "AS", "N", "URA"})
            // 32 rows but 20 satellites a burst: the two numbers differ on purpose.
            .rows(32, 20)
            .burstEndsWithoutHeaderAnywhere();
    return spec;
}

GpsephemerisTable::GpsephemerisTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : EphemerisPage(pageSpec(), parent, introStr, treeParent)
{
}
