// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QLatin1String>
#include <QString>
#include <QVector>

// Which page takes which receiver line, written down once: the pages read their
// header test from here, the module builds its catalogues from here, and the
// simulator names each line's page from here.

enum class PageCategory {
    Nmea,         // "NMEA": every text mode
    KorvaneAscii, // "Korvane": the maker's ASCII logs, modes 1 and 2
    Timing,       // "Time": the timing receivers' sentences, mode 7
    Unlisted,     // pages no mode builds
};

struct PageRoute
{
    // The tree label, which is also the introduction text the page is made with.
    // Null on an unlisted row.
    const char *label;
    // The page class, as its meta-object names it (and as its texts are translated).
    const char *pageClass;
    PageCategory category;
    // 0: in every mode that shows the category; otherwise only in that mode.
    int modeFilter;
    // The line matches when its comparedLength characters from offset equal the
    // header. A header shorter than comparedLength therefore matches only a line
    // that ends right after it, which a received line never does.
    QLatin1String header;
    int offset;
    int comparedLength;
    bool requiresDollar;
    // False for a page that gathers a group of lines: it takes every line with its
    // header and checks the checksums of some of them later, if at all.
    bool checksumBeforeTaking;
    // Shorter lines are refused before the header is compared.
    int minimumLength;

    bool matchesHeader(const QString &line) const;
};

// The rows of a category in tree order.
QVector<const PageRoute *> categoryRoutes(PageCategory category);

// The pages a product mode builds, in the order each line is offered to them.
// Empty for the binary modes and the modes without pages.
const QVector<const PageRoute *> &offeredRoutes(int mode);

// The route of a page of this class made under this label: the class's row with
// that label, else the class's first row.
const PageRoute &routeOfPage(const char *pageClass, const QString &label);

// The page that takes this line (with its "\r\n") in this mode while no page is on
// screen, as the headless console runs; null when no page takes it.
const PageRoute *routeTakingLine(int mode, const QString &line);
