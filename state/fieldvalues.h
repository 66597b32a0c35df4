// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtext.h"

#include <QDate>

// The fields of one line as typed values. Every reader gives a defined "unknown"
// (kUnknown, -1, an invalid date) for an empty, malformed, out-of-range or
// non-finite field, so a damaged line cannot set an absurd value.
class LineFields
{
public:
    explicit LineFields(const FieldViews &fields)
        : m_fields(fields)
    {
    }

    // Fields before the checksum, which splitFields() leaves last.
    int count() const { return m_fields.size() - 1; }
    QStringView operator[](int i) const { return i >= 0 && i < count() ? m_fields.at(i) : QStringView(); }

    double number(int i) const;
    // A decimal count or number of at most nine digits; -1 otherwise.
    int integer(int i) const;
    // Hexadecimal, at most eight digits.
    bool hex(int i, quint32 &value) const;
    // "ddmm.mmmm" / "dddmm.mmmm" with its hemisphere letter in the next field.
    double nmeaDegrees(int i, double limit) const;
    // "hhmmss" with any fraction, as milliseconds of the day; -1 otherwise.
    int nmeaTimeOfDayMs(int i) const;
    // "ddmmyy" (years 80-99 are 1980-1999).
    QDate nmeaDate(int i) const;
    bool equals(int i, const char *text) const { return (*this)[i] == QLatin1String(text); }

private:
    const FieldViews &m_fields;
};
