// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QIODevice>
#include <QString>
#include <QTextStream>
#include <functional>

class MessageViewModules;
class QWidget;
class QStackedWidget;
class LineTraffic;
class ReceiverState;
class ReceiverSession;
struct CorrectionSnapshot;
struct SeekRebuild;

// Hands a headless run's bytes to the state and the module (the state first: its clock
// stamps what the module reports) and returns how many there were.
using HeadlessFeeder = std::function<qint64(MessageViewModules &module, ReceiverState &state)>;

// The whole of an input, as fast as it can be read.
HeadlessFeeder feedFromDevice(QIODevice &input);
// The session's open link (and whatever the session carries besides: clients served,
// corrections) until durationSeconds have passed (0: until the link ends, or SIGINT or
// SIGTERM arrives), saying on standard error how the link fares. status becomes 1 when
// the link failed for good.
HeadlessFeeder feedFromSession(ReceiverSession &session, int durationSeconds, int *status);

// Feeds everything and prints what each page took, the kinds no page took and the damage.
int runHeadless(MessageViewModules &module, ReceiverState &state, LineTraffic &traffic, const HeadlessFeeder &feed,
                QTextStream &out);

// Feeds everything with every page of the mode visible at once, then writes one PNG per
// page into directory, named by its tree label, one of each receiver view (view-sky.png,
// ...) and of the traffic docks, and with a correction stream dock-corrections.png.
int runSnapshot(MessageViewModules &module, ReceiverState &state, LineTraffic &traffic, QStackedWidget &stack,
                const HeadlessFeeder &feed, const QString &directory, QTextStream &out,
                ReceiverSession *session = nullptr);

// The receiver state, the messages seen and (with a correction stream) the corrections
// as one JSON object, into path ("-": standard output).
bool writeStateReport(const ReceiverState &state, const LineTraffic &traffic, const CorrectionSnapshot *corrections,
                      const QString &path, QString *error);

// Saves a picture of the widget as it is into directory/name.png and names the file on
// out (or says it could not); true when written.
bool writePicture(QWidget &widget, const QString &directory, const QString &name, QTextStream &out);

// Gives a fresh state and freshly made pages what a seek replays (the pages first their
// remembered lines, the state first its longer stretch), so that both show what a play
// from the start to rebuild.endOffset shows.
void replaySeek(MessageViewModules &module, ReceiverState &state, const SeekRebuild &rebuild);

// The console's window playing a recording, paused at the epoch `share` of the way
// through with the page `label` on screen: window-player.png of the window and
// player.png of its player bar, into directory. The number of pictures written.
int writePlayerPictures(const QString &recording, const QString &language, int mode, double share,
                        const QString &label, const QString &directory, QTextStream &out);
