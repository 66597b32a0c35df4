#pragma once

#include <QIODevice>
#include <QString>
#include <QTextStream>

class MessageViewModules;
class QStackedWidget;

// Feeds a whole input to a module as fast as possible and prints what each page took.
int runHeadlessReplay(MessageViewModules &module, QIODevice &input, QTextStream &out);

// Replays the input with every page of the mode visible at once, then writes one PNG
// per page into directory, named by its tree label.
int runSnapshot(MessageViewModules &module, QStackedWidget &stack, QIODevice &input, const QString &directory,
                QTextStream &out);
