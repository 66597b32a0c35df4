// SPDX-License-Identifier: BSD-3-Clause
#include "messagedescription.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTableWidget>

#include <dlfcn.h>
#include <fstream>
#include <string>

namespace {

// One line as text. Files saved on Windows end lines with CR and may begin with a
// byte order mark; neither belongs to a field.
QString lineText(std::string line, bool first)
{
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    if (first && line.compare(0, 3, "\xEF\xBB\xBF") == 0)
        line.erase(0, 3);
    return QString::fromStdString(line);
}

} // namespace

QString messageDescriptionPath(const QString &directory, const QString &messageName, const QString &languageSuffix)
{
    return directory + QLatin1Char('/') + messageName + languageSuffix;
}

QString defaultMessageConfigDirectory()
{
    const QString name = QStringLiteral("MessageConfig");
    if (QDir::current().exists(name))
        return QDir::current().absoluteFilePath(name);
    // The library's own file, found through one of its functions: the program when
    // the library is linked into it.
    static const QString besideLibrary = [&name] {
        Dl_info info;
        if (!dladdr(reinterpret_cast<void *>(&defaultMessageConfigDirectory), &info) || !info.dli_fname)
            return QString();
        return QFileInfo(QFile::decodeName(info.dli_fname)).absoluteDir().absoluteFilePath(name);
    }();
    if (!besideLibrary.isEmpty() && QFileInfo(besideLibrary).isDir())
        return besideLibrary;
    return QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(name);
}

bool readMessageDescriptionHeader(QTableWidget *table, const QString &path)
{
    std::ifstream file(QFile::encodeName(path).constData());
    std::string line;
    if (!file.is_open() || !std::getline(file, line))
        return false;
    const QStringList labels = lineText(line, true).split(QLatin1Char('\t'), Qt::KeepEmptyParts);
    // A list layout may have more columns than the usual four; never fewer, so the
    // rows always have their unit and description cells.
    table->setColumnCount(qMax(4, labels.size()));
    table->setHorizontalHeaderLabels(labels);
    return true;
}

bool readMessageDescriptionRows(QTableWidget *table, const QString &path)
{
    std::ifstream file(QFile::encodeName(path).constData());
    if (!file.is_open())
        return false;
    std::string line;
    std::getline(file, line); // the header
    QStringList lines;
    while (std::getline(file, line))
        lines.append(lineText(line, false));

    // clearContents rather than clear: the headers just read stay.
    table->clearContents();
    table->setRowCount(lines.size());
    for (int row = 0; row < lines.size(); ++row) {
        const QStringList fields = lines.at(row).split(QLatin1Char('\t'), Qt::KeepEmptyParts);
        if (fields.size() != 3)
            return false;
        table->setItem(row, 0, new QTableWidgetItem(fields.at(0)));
        table->setItem(row, 2, new QTableWidgetItem(fields.at(1)));
        table->setItem(row, 3, new QTableWidgetItem(fields.at(2)));
    }
    return true;
}
