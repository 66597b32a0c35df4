// SPDX-License-Identifier: BSD-3-Clause
#include "gloephemtable.h"

const EphemerisSpec &GloephemTable::pageSpec()
{
    // "Sloto", "freqo" and "healtha" are the established column names, kept as they are.
    static const EphemerisSpec spec =
        EphemerisSpec::log(staticMetaObject,
                           {"Sloto", "freqo", "sat type", "Reserved", "e week", "e time", "t offset", "Nt",
                            "Reserved", "Reserved", "issue", "healtha", "pos x", "pos y", "pos z", "vel x",
                            "vel y", "vel z", "LS acc x", "LS acc y", "LS acc z", "tau_n", "delta_tau_n",
                            "gamma", "Tk", "P", "Ft", "age", "Flags"})
            .rows(20, 20);
    return spec;
}

GloephemTable::GloephemTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : EphemerisPage(pageSpec(), parent, introStr, treeParent)
{
}
