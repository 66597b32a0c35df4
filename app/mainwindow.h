// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receiversession.h"
#include "receiverstate.h"
#include "recordingplayer.h"

#include <QElapsedTimer>
#include <QFile>
#include <QMainWindow>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <memory>

class MessageViewModules;
class PlayerBar;
class QToolBar;
struct SeekRebuild;
class LineTraffic;
class CorrectionsView;
class QDockWidget;
class ReceiverDocks;
class TrafficDocks;
class QActionGroup;
class QLabel;
class QLineEdit;
class QStackedWidget;
class QSplitter;

// The receiver console: the message tree beside the page area, pictures of the
// receiver in docks around them, a connection to the receiver, recording, a command
// line to the receiver and a live status bar.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    MainWindow(const QString &language, int mode, QWidget *parent = nullptr);
    ~MainWindow() override;

    MessageViewModules *module() const { return m_module; }
    QStackedWidget *stack() const { return m_stack; }
    ReceiverConnection *connection() const { return m_session.connection(); }
    ReceiverSession *session() { return &m_session; }
    ReceiverState *receiverState() { return &m_state; }
    ReceiverDocks *receiverDocks() const { return m_docks; }
    TrafficDocks *trafficDocks() const { return m_trafficDocks; }
    LineTraffic *lineTraffic() const { return m_traffic; }
    int mode() const { return m_mode; }

    // Takes over a connection, opens it and shows its state.
    void connectTo(std::unique_ptr<ReceiverConnection> connection);
    // Plays a recorded session with the player bar: bytesPerSecond until it is indexed
    // (0: as fast as possible), then at the receiver's pace.
    void openRecording(const QString &path, int bytesPerSecond = 11520);
    // The recording being played, or null.
    RecordingPlayer *player() const { return m_player; }
    PlayerBar *playerBar() const { return m_playerBar; }
    void disconnectReceiver();
    void setMode(int mode);
    void setLanguage(const QString &language);
    bool startRecording(const QString &path = QString());
    void stopRecording();
    QString recordingPath() const { return m_recording.fileName(); }
    // Sends a typed command with "\r\n"; false (and a status message) without a link.
    bool sendCommandText(const QString &command);
    // Corrections from a caster, written to the receiver and shown in their dock.
    void startCorrections(const NtripAddress &address, int ggaIntervalSeconds);
    CorrectionsView *correctionsView() const { return m_correctionsView; }

    static QList<QPair<int, QString>> productModes();

private:
    void createModule();
    void buildMenus();
    void onData(const QByteArray &bytes);
    void forgetReceiver();
    void onConnectionState(ReceiverConnection::State state, const QString &text);
    void updateStatus();
    void updateWindowTitle();
    void chooseSerialPort();
    void chooseNetworkPeer(const QString &kind, const QString &title, const QString &label);
    void toggleServing(bool on);
    void createCorrectionsDock();
    void chooseCorrections();
    void chooseReplayFile();
    void createPlayerBar();
    void attachPlayer();
    void showRebuilt(const SeekRebuild &rebuild);
    void goToTime(const QString &text);
    void exportRecording();
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

    QString m_language;
    int m_mode;
    QSplitter *m_splitter = nullptr;
    QStackedWidget *m_stack = nullptr;
    MessageViewModules *m_module = nullptr;
    ReceiverSession m_session;
    ReceiverState m_state;
    ReceiverDocks *m_docks = nullptr;
    LineTraffic *m_traffic = nullptr;
    TrafficDocks *m_trafficDocks = nullptr;
    QFile m_recording;
    QActionGroup *m_modeGroup = nullptr;
    QActionGroup *m_languageGroup = nullptr;
    QAction *m_pauseAction = nullptr;
    QAction *m_recordAction = nullptr;
    QAction *m_serveAction = nullptr;
    QLineEdit *m_commandLine = nullptr;
    QStringList m_history;
    int m_historyIndex = 0;
    QLabel *m_connectionLabel = nullptr;
    QLabel *m_correctionsLabel = nullptr;
    CorrectionsView *m_correctionsView = nullptr;
    QDockWidget *m_correctionsDock = nullptr;
    QString m_pageOnScreen; // the tree label of the page last brought forward
    bool m_receiverLost = false;
    QPointer<RecordingPlayer> m_player; // the session owns it
    PlayerBar *m_playerBar = nullptr;
    QToolBar *m_playerToolBar = nullptr;
    QLabel *m_rateLabel = nullptr;
    QLabel *m_totalLabel = nullptr;
    QLabel *m_silenceLabel = nullptr;
    QTimer m_statusTimer;
    QElapsedTimer m_sinceData;
    quint64 m_totalBytes = 0;
    quint64 m_bytesAtLastTick = 0;
    quint64 m_linesAtLastTick = 0;
};
