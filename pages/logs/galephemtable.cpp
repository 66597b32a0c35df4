// SPDX-License-Identifier: BSD-3-Clause
#include "galephemtable.h"

const EphemerisSpec &GalephemTable::pageSpec()
{
    static const EphemerisSpec spec =
        EphemerisSpec::log(staticMetaObject,
                           {"SatId", "FNAVReceived", "INAVReceived", "E1BHealth", "E5aHealth", "E5bHealth",
                            "E1BDVS", "E5aDVS", "E5bDVS", "SISA", "Reserved", "IODNav", "T0e", "RootA", "DeltaN",
                            "M0", "Ecc", "Omega", "Cuc", "Cus", "Crc", "Crs", "Cic", "Cis", "I0", "IDot", "Omega0",
                            "OmegaDot", "FNAVT0c", "FNAVAf0", "FNAVAf1", "FNAVAf2", "INAVT0c", "INAVAf0", "INAVAf1",
                            "INAVAf2", "E1E5aBGD", "E1E5bBGD"})
            .rows(20, 20);
    return spec;
}

GalephemTable::GalephemTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : EphemerisPage(pageSpec(), parent, introStr, treeParent)
{
}
