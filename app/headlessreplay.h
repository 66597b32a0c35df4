#pragma once

#include <QIODevice>
#include <QTextStream>

class MessageViewModules;

// Feeds a whole input to a module as fast as possible and prints what each page took.
int runHeadlessReplay(MessageViewModules &module, QIODevice &input, QTextStream &out);
