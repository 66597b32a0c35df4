// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "correctionstatistics.h"
#include "ntripclient.h"
#include "rawbyteserver.h"
#include "receiverconnection.h"

#include <QObject>
#include <memory>

class ReceiverState;

// One receiver link and what travels on it besides the receiver's own bytes: the bytes
// re-served to other programs, and corrections from an NTRIP caster, written unchanged
// to the receiver and decoded on the way. The console's window and its headless runs
// share it.
class ReceiverSession : public QObject
{
    Q_OBJECT
public:
    explicit ReceiverSession(QObject *parent = nullptr);
    ~ReceiverSession() override;

    // Takes over a connection and opens it; the one before is closed.
    void open(std::unique_ptr<ReceiverConnection> connection);
    void close();
    ReceiverConnection *connection() const { return m_connection.get(); }

    RawByteServer &server() { return m_server; }

    // The caster's GGA uploads come from this state: the receiver's own last GGA, else
    // one made from its fix.
    void setReceiverState(const ReceiverState *state);
    void startCorrections(const NtripAddress &address, int ggaIntervalSeconds);
    void stopCorrections();
    NtripClient &ntrip() { return m_ntrip; }
    // Timed by the wall clock (milliseconds since the epoch).
    CorrectionSnapshot corrections() const;
    // Correction bytes the receiver link could not take (a replay, gpsd, no link).
    qint64 correctionBytesNotForwarded() const { return m_notForwarded; }

signals:
    // The receiver's bytes, after they have been passed on to the clients served.
    void dataReceived(const QByteArray &bytes);
    void connectionStateChanged(ReceiverConnection::State state, const QString &text);
    void correctionsStateChanged(NtripClient::State state, const QString &text);
    // Once per stretch of corrections the link cannot take, for the status bar.
    void message(const QString &text);

private:
    void forward(const QByteArray &corrections);

    std::unique_ptr<ReceiverConnection> m_connection;
    RawByteServer m_server;
    NtripClient m_ntrip;
    CorrectionStatistics m_statistics;
    const ReceiverState *m_state = nullptr;
    qint64 m_notForwarded = 0;
    bool m_saidNotForwarded = false;
};
