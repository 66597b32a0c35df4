// SPDX-License-Identifier: BSD-3-Clause
// The message description reader on arbitrary file contents: headers, then rows.
#include "fuzzsupport.h"
#include "messagedescription.h"

#include <QApplication>
#include <QFile>
#include <QTableWidget>
#include <QTemporaryDir>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzzApplication();
    static QTemporaryDir *dir = new QTemporaryDir;
    static QTableWidget *table = new QTableWidget;
    const QString path = dir->filePath(QStringLiteral("GGA_EN.txt"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return 0;
    file.write(reinterpret_cast<const char *>(data), qint64(size));
    file.close();
    readMessageDescriptionHeader(table, path);
    readMessageDescriptionRows(table, path);
    return 0;
}
