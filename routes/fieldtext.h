// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QLatin1String>
#include <QString>
#include <QStringView>
#include <QVector>

// The fields of a line as views into it: the same parts as splitting by the
// regular expression "[,*]" with empty parts kept, without building strings.
using FieldViews = QVector<QStringView>;

void splitFields(QStringView text, FieldViews &fields);

// line.mid(offset, length) == literal, without building the substring. A line too
// short to supply `length` characters compares only what it has, so a literal
// shorter than `length` matches a line that ends right after it (the pages'
// comparison, kept on purpose).
bool textAtEquals(const QString &line, int offset, int length, QLatin1String literal);
