#pragma once

#include <QIODevice>
#include <QString>
#include <QTextStream>

class MessageViewModules;
class QWidget;
class QStackedWidget;
class LineTraffic;
class ReceiverState;

// Feeds a whole input to a module (and the receiver state) as fast as possible and
// prints what each page took, the kinds no page took and the damage.
int runHeadlessReplay(MessageViewModules &module, ReceiverState &state, LineTraffic &traffic, QIODevice &input,
                      QTextStream &out);

// Replays the input with every page of the mode visible at once, then writes one PNG
// per page into directory, named by its tree label, and one of each receiver view
// (view-sky.png, ...).
int runSnapshot(MessageViewModules &module, ReceiverState &state, LineTraffic &traffic, QStackedWidget &stack,
                QIODevice &input, const QString &directory, QTextStream &out);

// The receiver state and the messages seen as one JSON object, into path ("-":
// standard output).
bool writeStateReport(const ReceiverState &state, const LineTraffic &traffic, const QString &path, QString *error);

// Saves a picture of the widget as it is into directory/name.png and names the file on
// out (or says it could not); true when written.
bool writePicture(QWidget &widget, const QString &directory, const QString &name, QTextStream &out);
