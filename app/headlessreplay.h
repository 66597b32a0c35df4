#pragma once

#include <QIODevice>
#include <QString>
#include <QTextStream>
#include <memory>

class MessageViewModules;
class QWidget;
class QStackedWidget;
class LineTraffic;
class ReceiverState;
class ReceiverSession;
class ReceiverConnection;
struct CorrectionSnapshot;

// Feeds a whole input to a module (and the receiver state) as fast as possible and
// prints what each page took, the kinds no page took and the damage.
int runHeadlessReplay(MessageViewModules &module, ReceiverState &state, LineTraffic &traffic, QIODevice &input,
                      QTextStream &out);

// Reads a live link through the session (which may also serve its bytes and carry
// corrections) until durationSeconds have passed (0: until the link ends or SIGINT or
// SIGTERM arrives), saying on standard error how the link fares; then prints the same
// summary. 1 when the link failed for good.
int runHeadlessLive(MessageViewModules &module, ReceiverState &state, LineTraffic &traffic, ReceiverSession &session,
                    std::unique_ptr<ReceiverConnection> connection, int durationSeconds, QTextStream &out);

// Replays the input with every page of the mode visible at once, then writes one PNG
// per page into directory, named by its tree label, and one of each receiver view
// (view-sky.png, ...).
int runSnapshot(MessageViewModules &module, ReceiverState &state, LineTraffic &traffic, QStackedWidget &stack,
                QIODevice &input, const QString &directory, QTextStream &out);

// The receiver state, the messages seen and (with a correction stream) the corrections
// as one JSON object, into path ("-": standard output).
bool writeStateReport(const ReceiverState &state, const LineTraffic &traffic, const CorrectionSnapshot *corrections,
                      const QString &path, QString *error);

// Saves a picture of the widget as it is into directory/name.png and names the file on
// out (or says it could not); true when written.
bool writePicture(QWidget &widget, const QString &directory, const QString &name, QTextStream &out);
