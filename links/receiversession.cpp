// SPDX-License-Identifier: BSD-3-Clause
#include "receiversession.h"

#include "ggasentence.h"
#include "receiverstate.h"

#include <QDateTime>

ReceiverSession::ReceiverSession(QObject *parent)
    : QObject(parent)
{
    connect(&m_ntrip, &NtripClient::correctionData, this, &ReceiverSession::forward);
    connect(&m_ntrip, &NtripClient::stateChanged, this, &ReceiverSession::correctionsStateChanged);
    m_ntrip.setGgaSource([this] {
        if (!m_state)
            return QByteArray();
        const QByteArray own = m_state->latestGga();
        return own.isEmpty() ? ggaFromFix(m_state->fix()) : own;
    });
}

ReceiverSession::~ReceiverSession()
{
    if (m_connection)
        m_connection->disconnect(this);
}

void ReceiverSession::open(std::unique_ptr<ReceiverConnection> connection)
{
    close();
    m_connection = std::move(connection);
    m_saidNotForwarded = false;
    connect(m_connection.get(), &ReceiverConnection::dataReceived, this, [this](const QByteArray &bytes) {
        m_server.send(bytes);
        emit dataReceived(bytes);
    });
    connect(m_connection.get(), &ReceiverConnection::stateChanged, this, &ReceiverSession::connectionStateChanged);
    m_connection->open();
}

void ReceiverSession::close()
{
    if (!m_connection)
        return;
    m_connection->close();
    m_connection->disconnect(this);
    m_connection.reset();
}

void ReceiverSession::setReceiverState(const ReceiverState *state)
{
    m_state = state;
}

void ReceiverSession::startCorrections(const NtripAddress &address, int ggaIntervalSeconds)
{
    m_ntrip.stop();
    m_statistics.reset();
    m_notForwarded = 0;
    m_saidNotForwarded = false;
    m_ntrip.setAddress(address);
    m_ntrip.setGgaIntervalSeconds(ggaIntervalSeconds);
    m_ntrip.start();
}

void ReceiverSession::stopCorrections()
{
    m_ntrip.stop();
}

CorrectionSnapshot ReceiverSession::corrections() const
{
    return m_statistics.snapshot(QDateTime::currentMSecsSinceEpoch());
}

void ReceiverSession::forward(const QByteArray &corrections)
{
    m_statistics.feed(corrections.constData(), corrections.size(), QDateTime::currentMSecsSinceEpoch());
    if (m_connection && m_connection->canWrite() && m_connection->write(corrections)) {
        m_saidNotForwarded = false;
        return;
    }
    m_notForwarded += corrections.size();
    if (m_saidNotForwarded)
        return;
    m_saidNotForwarded = true;
    emit message(m_connection ? tr("%1 takes no corrections: they are decoded, not forwarded")
                                    .arg(m_connection->description())
                              : tr("No receiver link: corrections are decoded, not forwarded"));
}
