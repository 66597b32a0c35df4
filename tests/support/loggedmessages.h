#pragma once

#include <QList>
#include <QPair>
#include <QStringList>
#include <QtGlobal>

// Collects what Qt logs (after the category filters) while it lives, instead of
// printing it, so that a test can require a quiet run or an exact message count.
class LoggedMessages
{
public:
    LoggedMessages()
    {
        s_current = this;
        m_previous = qInstallMessageHandler(&collect);
    }
    ~LoggedMessages()
    {
        qInstallMessageHandler(m_previous);
        s_current = nullptr;
    }

    QStringList texts(QtMsgType type) const
    {
        QStringList texts;
        for (const auto &message : m_messages) {
            if (message.first == type)
                texts << message.second;
        }
        return texts;
    }

private:
    static void collect(QtMsgType type, const QMessageLogContext &, const QString &text)
    {
        s_current->m_messages.append({type, text});
    }

    static inline LoggedMessages *s_current = nullptr;
    QtMessageHandler m_previous = nullptr;
    QList<QPair<QtMsgType, QString>> m_messages;
};
