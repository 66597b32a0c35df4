// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

class QTableWidget;

// Message description files: one per message kind and language, in a folder the
// host names, by default "MessageConfig". TAB-separated UTF-8 lines: the table's
// column headers, then one row per field with its parameter name, unit and
// description; the decoded values go in column 1.
QString messageDescriptionPath(const QString &directory, const QString &messageName, const QString &languageSuffix);

// The folder when the host names none: "MessageConfig" in the current directory when
// it exists, as hosts have always relied on; else the one beside this library, where
// it is built and installed; else the one beside the program.
QString defaultMessageConfigDirectory();

// Sets the table's column headers from the file's first line. False, and the table
// untouched, when the file does not open.
bool readMessageDescriptionHeader(QTableWidget *table, const QString &path);

// Replaces the table's rows by the file's lines after the header. Stops with false
// at the first line that has not exactly three fields, keeping the rows placed so
// far; false, and the table untouched, when the file does not open.
bool readMessageDescriptionRows(QTableWidget *table, const QString &path);
