// SPDX-License-Identifier: BSD-3-Clause
#include "fieldtext.h"

#include <algorithm>

void splitFields(QStringView text, FieldViews &fields)
{
    const QChar *data = text.data();
    const qsizetype size = text.size();
    const auto isSeparator = [](QChar c) { return c.unicode() == ',' || c.unicode() == '*'; };
    // Sized once, then filled: long observation logs have a thousand fields.
    fields.resize(int(std::count_if(data, data + size, isSeparator)) + 1);
    QStringView *field = fields.data();
    qsizetype start = 0;
    for (qsizetype i = 0; i < size; ++i) {
        if (isSeparator(data[i])) {
            *field++ = QStringView(data + start, i - start);
            start = i + 1;
        }
    }
    *field = QStringView(data + start, size - start);
}

bool textAtEquals(const QString &line, int offset, int length, QLatin1String literal)
{
    if (offset > line.size())
        return literal.isEmpty();
    const int available = std::min(length, line.size() - offset);
    return available == literal.size() && QStringView(line).mid(offset, available) == literal;
}
