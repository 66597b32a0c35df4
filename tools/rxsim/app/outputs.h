// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

#include <cstdio>

class QTcpServer;
class QTcpSocket;

// Where the simulated receiver's bytes go. An output may hold bytes back (a slow
// link); the generator looks at backlog() when it runs as fast as it can.
class Output : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;
    virtual void write(const QByteArray &chunk) = 0;
    virtual bool isBacklogged() const { return false; }
    // True once the output can take nothing more (a closed pipe).
    virtual bool hasFailed() const { return false; }
    // Delivers what is held back, then emits finished().
    virtual void finish() { emit finished(); }

signals:
    void drained();
    void finished();
    // Bytes the other end sent back over one of the output's links, and the end of
    // that link (a TCP client leaving).
    void received(quintptr link, const QByteArray &bytes);
    void linkClosed(quintptr link);
};

// Standard output or a file: plain blocking writes.
class StreamOutput : public Output
{
    Q_OBJECT
public:
    StreamOutput(std::FILE *file, bool owned, QObject *parent = nullptr);
    ~StreamOutput() override;
    void write(const QByteArray &chunk) override;
    bool hasFailed() const override { return m_failed; }

private:
    std::FILE *m_file;
    bool m_owned;
    bool m_failed = false;
};

// A TCP server on the loopback interface; every client gets the stream from the
// moment it connects. What a client sends is handed on as received() at once.
class TcpOutput : public Output
{
    Q_OBJECT
public:
    TcpOutput(bool asFastAsPossible, QObject *parent = nullptr);
    bool listen(quint16 port, QString *error);
    quint16 port() const;
    int clientCount() const { return m_clients.size(); }
    void write(const QByteArray &chunk) override;
    bool isBacklogged() const override;
    void finish() override;

signals:
    void clientCountChanged(int count);

private:
    void checkFinished();

    QTcpServer *m_server;
    QList<QTcpSocket *> m_clients;
    bool m_asFastAsPossible;
    bool m_finishing = false;
};

// A serial device or pseudo-terminal, raw 8N1 at a standard baud rate; bytes leave
// no faster than the line would carry them (ten bit times per byte). With
// setReadsBack(true) what arrives on the line is handed on as received().
class SerialOutput : public Output
{
    Q_OBJECT
public:
    SerialOutput(bool asFastAsPossible, QObject *parent = nullptr);
    ~SerialOutput() override;
    bool open(const QString &path, int baud, QString *error);
    void setReadsBack(bool readsBack) { m_readsBack = readsBack; }
    void write(const QByteArray &chunk) override;
    bool isBacklogged() const override;
    bool hasFailed() const override { return m_failed; }
    void finish() override;

private:
    void pump();
    void readBack();

    int m_fd = -1;
    double m_bytesPerSecond = 0.0;
    double m_allowance = 0.0;
    qint64 m_lastPumpNs = 0;
    QByteArray m_pending;
    QTimer m_timer;
    bool m_asFastAsPossible;
    bool m_readsBack = false;
    bool m_failed = false;
    bool m_finishing = false;
    bool m_warnedOverflow = false;
};
