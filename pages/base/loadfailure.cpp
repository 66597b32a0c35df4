// SPDX-License-Identifier: BSD-3-Clause
#include "loadfailure.h"

#include <QLoggingCategory>
#include <QMutex>
#include <QSet>

namespace {
Q_LOGGING_CATEGORY(fileLog, "messageview.files", QtCriticalMsg)
} // namespace

void reportLoadFailure(const char *what, const QString &path)
{
    // Checked first, so that a file looked for while nobody listens is still reported
    // once someone does.
    if (!fileLog().isWarningEnabled())
        return;
    static QMutex mutex;
    static QSet<QString> reported;
    QMutexLocker locker(&mutex);
    if (reported.contains(path))
        return;
    reported.insert(path);
    qCWarning(fileLog).noquote() << "cannot load the" << what << "file" << path;
}
