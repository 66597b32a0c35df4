#pragma once

#include <QIODevice>
#include <QString>
#include <QTextStream>

class MessageViewModules;
class QStackedWidget;
class ReceiverState;

// Feeds a whole input to a module (and the receiver state) as fast as possible and
// prints what each page took.
int runHeadlessReplay(MessageViewModules &module, ReceiverState &state, QIODevice &input, QTextStream &out);

// Replays the input with every page of the mode visible at once, then writes one PNG
// per page into directory, named by its tree label, and one of each receiver view
// (view-sky.png, ...).
int runSnapshot(MessageViewModules &module, ReceiverState &state, QStackedWidget &stack, QIODevice &input,
                const QString &directory, QTextStream &out);

// The receiver state as one JSON object, into path ("-": standard output).
bool writeStateReport(const ReceiverState &state, const QString &path, QString *error);
