#include "headlessreplay.h"
#include "mainwindow.h"
#include "messageviewmodules.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QStackedWidget>
#include <QTextStream>

#include <cstdio>
#include <cstring>

namespace {

bool wantsHeadless(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--headless") == 0)
            return true;
    }
    return false;
}

bool openInput(QFile &file, const QString &path)
{
    if (path == QLatin1String("-"))
        return file.open(stdin, QIODevice::ReadOnly);
    file.setFileName(path);
    return file.open(QIODevice::ReadOnly);
}

} // namespace

int main(int argc, char **argv)
{
    // Headless runs need no display; choose the offscreen platform before Qt starts.
    if (wantsHeadless(argc, argv) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("msgview"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Receiver message console: one live page per message kind."));
    parser.addHelpOption();
    const QCommandLineOption replayOption(QStringLiteral("replay"),
                                          QStringLiteral("Replay receiver bytes from FILE ('-' reads standard input)."),
                                          QStringLiteral("FILE"));
    const QCommandLineOption modeOption(QStringLiteral("mode"),
                                        QStringLiteral("Product mode: 0 NMEA, 1/2 NMEA and maker logs, 4/5 binary, 7 timing."),
                                        QStringLiteral("N"), QStringLiteral("2"));
    const QCommandLineOption langOption(QStringLiteral("lang"), QStringLiteral("Language: EN or CH."),
                                        QStringLiteral("EN|CH"), QStringLiteral("EN"));
    const QCommandLineOption headlessOption(QStringLiteral("headless"),
                                            QStringLiteral("Feed the whole input without a window; print lines per page and throughput."));
    const QCommandLineOption rateOption(QStringLiteral("rate"),
                                        QStringLiteral("Replay pace in bytes per second in the window (0: as fast as possible)."),
                                        QStringLiteral("BYTES"), QStringLiteral("11520"));
    parser.addOptions({replayOption, modeOption, langOption, headlessOption, rateOption});
    parser.process(app);

    bool modeOk = false;
    const int mode = parser.value(modeOption).toInt(&modeOk);
    if (!modeOk) {
        std::fprintf(stderr, "msgview: --mode needs a number\n");
        return 2;
    }
    const QString language = parser.value(langOption).toUpper();

    QFile input;
    if (parser.isSet(replayOption) && !openInput(input, parser.value(replayOption))) {
        std::fprintf(stderr, "msgview: cannot open %s: %s\n", qPrintable(parser.value(replayOption)),
                     qPrintable(input.errorString()));
        return 1;
    }

    if (parser.isSet(headlessOption)) {
        if (!input.isOpen() && !openInput(input, QStringLiteral("-")))
            return 1;
        QStackedWidget stack;
        MessageViewModules module(&stack, language);
        module.addItemToTree(mode);
        QTextStream out(stdout);
        return runHeadlessReplay(module, input, out);
    }

    // Without an input the console replays the demo session built into it.
    if (!input.isOpen()) {
        input.setFileName(QStringLiteral(":/demo/rxsim-demo.log"));
        input.open(QIODevice::ReadOnly);
    }
    MainWindow window(language, mode);
    window.show();
    if (input.isOpen())
        window.replay(&input, parser.value(rateOption).toInt());
    return app.exec();
}
