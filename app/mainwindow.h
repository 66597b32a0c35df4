#pragma once

#include <QMainWindow>
#include <QTimer>

class MessageViewModules;
class QIODevice;
class QStackedWidget;

// The console window: the module's message tree beside the stacked page area.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    MainWindow(const QString &language, int mode, QWidget *parent = nullptr);
    ~MainWindow() override;

    MessageViewModules *module() const { return m_module; }
    // Replays a device at about `bytesPerSecond` (0: as fast as the event loop allows).
    void replay(QIODevice *input, int bytesPerSecond);

private:
    void feedNextChunk();

    QStackedWidget *m_stack = nullptr;
    MessageViewModules *m_module = nullptr;
    QIODevice *m_input = nullptr;
    QTimer m_replayTimer;
    int m_chunkBytes = 0;
};
