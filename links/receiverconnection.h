// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>
#include <memory>

class QFile;
class QSerialPort;
class QSocketNotifier;
class QTcpSocket;

// A source of receiver bytes: a serial port, a TCP stream, a replayed file or standard
// input. Lost serial devices and TCP peers are retried with back-off until close().
class ReceiverConnection : public QObject
{
    Q_OBJECT
public:
    enum class State { Closed, Opening, Open, Retrying, Paused, Finished, Failed };
    Q_ENUM(State)

    ~ReceiverConnection() override;

    // "serial:/dev/ttyUSB0@115200", "tcp:host:port", "gpsd:host[:port]",
    // "file:PATH[@BYTES_PER_SECOND]" or "stdin". Returns null and sets error for an
    // address it cannot understand.
    static std::unique_ptr<ReceiverConnection> fromAddress(const QString &address, QString *error);

    virtual void open() = 0;
    virtual void close() = 0;
    // Sends bytes to the receiver; false when the connection cannot send now.
    virtual bool write(const QByteArray &bytes);
    virtual bool canWrite() const { return false; }
    // Replays only: pause/resume and start again from the beginning.
    virtual bool canPause() const { return false; }
    virtual void setPaused(bool) {}
    virtual void restart() {}

    State state() const { return m_state; }
    QString description() const { return m_description; }
    QString stateText() const { return m_stateText; }

signals:
    void dataReceived(const QByteArray &bytes);
    void stateChanged(ReceiverConnection::State state, const QString &text);

protected:
    explicit ReceiverConnection(QString description);
    void setState(State state, const QString &text);

private:
    State m_state = State::Closed;
    QString m_description;
    QString m_stateText;
};

// Retry timing for lost links: 1 s, doubling up to 30 s, reset by a good connection.
class Backoff
{
public:
    int nextDelayMs();
    void reset() { m_delayMs = 0; }

private:
    int m_delayMs = 0;
};

class SerialConnection : public ReceiverConnection
{
    Q_OBJECT
public:
    SerialConnection(QString device, int baud);
    ~SerialConnection() override;
    void open() override;
    void close() override;
    bool write(const QByteArray &bytes) override;
    bool canWrite() const override;

private:
    void fail(const QString &reason);
    QString m_device;
    int m_baud;
    QSerialPort *m_port;
    QTimer m_retry;
    Backoff m_backoff;
    bool m_wanted = false;
};

class TcpConnection : public ReceiverConnection
{
    Q_OBJECT
public:
    TcpConnection(QString host, quint16 port);
    void open() override;
    void close() override;
    bool write(const QByteArray &bytes) override;
    bool canWrite() const override;

protected:
    TcpConnection(QString host, quint16 port, QString descriptionText);
    // What a server speaking its own protocol says first, and what of its bytes are
    // the receiver's.
    virtual void greet() {}
    virtual void deliver(const QByteArray &bytes) { emit dataReceived(bytes); }
    QTcpSocket *socket() const { return m_socket; }

private:
    void lost(const QString &reason);
    QString m_host;
    quint16 m_port;
    QTcpSocket *m_socket;
    QTimer m_retry;
    Backoff m_backoff;
    bool m_wanted = false;
};

// A receiver that gpsd owns: gpsd is asked to pass on its NMEA as it arrives, and its
// own JSON reports are left out, so the module sees only the receiver's sentences.
class GpsdConnection : public TcpConnection
{
    Q_OBJECT
public:
    static constexpr quint16 kDefaultPort = 2947;
    GpsdConnection(QString host, quint16 port);
    // gpsd takes no bytes for the receiver on its watch stream.
    bool canWrite() const override { return false; }

protected:
    void greet() override;
    void deliver(const QByteArray &bytes) override;

private:
    bool m_atLineStart = true;
    bool m_inReport = false;
};

class FileReplayConnection : public ReceiverConnection
{
    Q_OBJECT
public:
    // bytesPerSecond 0 replays as fast as the event loop allows.
    FileReplayConnection(QString path, int bytesPerSecond);
    ~FileReplayConnection() override;
    void open() override;
    void close() override;
    bool canPause() const override { return true; }
    void setPaused(bool paused) override;
    void restart() override;

private:
    void feed();
    QString m_path;
    int m_bytesPerSecond;
    std::unique_ptr<QFile> m_file;
    QTimer m_timer;
};

class StdinConnection : public ReceiverConnection
{
    Q_OBJECT
public:
    StdinConnection();
    void open() override;
    void close() override;

private:
    QSocketNotifier *m_notifier = nullptr;
};
