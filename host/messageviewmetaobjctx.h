// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMetaObject>
#include <QString>

// One catalogue entry: the page class, its tree label and the mode it is limited to
// (0: every mode that uses the catalogue).
struct MessageViewMetaObjCtx
{
    QMetaObject metaObject;
    QString label;
    int modeFilter;
};

// A constant catalogue: the entries of one tree category, in tree order.
struct MessageViewCatalogue
{
    const MessageViewMetaObjCtx *entries;
    int count;
};

// Filled by static initialisation, before any module exists.
extern const MessageViewCatalogue nmeaCatalogue;
extern const MessageViewCatalogue korvaneAsciiCatalogue;
extern const MessageViewCatalogue timingCatalogue;
