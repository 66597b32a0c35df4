// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMap>
#include <QStringList>
#include <QtGlobal>

// Collects what Qt logs (after the category filters) while it lives, instead of
// printing it, so that a test can require a quiet run or an exact message count.
class LoggedMessages
{
public:
    LoggedMessages() { s_current = this; m_previous = qInstallMessageHandler(&collect); }
    ~LoggedMessages() { qInstallMessageHandler(m_previous); s_current = nullptr; }
    QStringList texts(QtMsgType type) const { return m_texts.value(type); }

private:
    static void collect(QtMsgType type, const QMessageLogContext &, const QString &text) { s_current->m_texts[type] << text; }

    static inline LoggedMessages *s_current = nullptr;
    QtMessageHandler m_previous = nullptr;
    QMap<QtMsgType, QStringList> m_texts;
};
