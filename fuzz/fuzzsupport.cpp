// SPDX-License-Identifier: BSD-3-Clause
#include "fuzzsupport.h"

#include <QApplication>
#include <QLoggingCategory>

QApplication &fuzzApplication()
{
    static QApplication *app = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.*=false"));
        static int argc = 1;
        static char name[] = "fuzz";
        static char *argv[] = {name, nullptr};
        return new QApplication(argc, argv);
    }();
    return *app;
}

QByteArray FuzzInput::take(int count)
{
    const size_t n = qMin(size_t(qMax(count, 0)), m_size - m_offset);
    QByteArray bytes(reinterpret_cast<const char *>(m_data + m_offset), int(n));
    m_offset += n;
    return bytes;
}
