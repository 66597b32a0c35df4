// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

// A file the library could not load (a translation, a message description). The
// library stays quiet by default: this is said under the logging category
// "messageview.files", whose warnings a host turns on, and then only once per file
// and process, however often the file is looked for.
void reportLoadFailure(const char *what, const QString &path);
