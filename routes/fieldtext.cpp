#include "fieldtext.h"

#include <algorithm>

void splitFields(QStringView text, FieldViews &fields)
{
    fields.clear();
    const QChar *data = text.data();
    const qsizetype size = text.size();
    qsizetype start = 0;
    for (qsizetype i = 0; i < size; ++i) {
        const ushort c = data[i].unicode();
        if (c == ',' || c == '*') {
            fields.append(QStringView(data + start, i - start));
            start = i + 1;
        }
    }
    fields.append(QStringView(data + start, size - start));
}

bool textAtEquals(const QString &line, int offset, int length, QLatin1String literal)
{
    if (offset > line.size())
        return literal.isEmpty();
    const int available = std::min(length, line.size() - offset);
    return available == literal.size() && QStringView(line).mid(offset, available) == literal;
}
