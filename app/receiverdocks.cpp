// SPDX-License-Identifier: BSD-3-Clause
#include "receiverdocks.h"

#include "headlessreplay.h"
#include "historyview.h"
#include "positionview.h"
#include "receiverstate.h"
#include "signalsview.h"
#include "skyview.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QSettings>
#include <QTimer>

#include <iterator>
#include <memory>

namespace {

struct ViewKind
{
    const char *name; // object name of the dock (the saved layout knows it by it) and picture name
    const char *title;
    Qt::DockWidgetArea area;
    ReceiverView *(*make)();
};

// The order of the docks in the menu and where they first appear: sky and position
// beside the pages, signals and history below them.
const ViewKind kViews[] = {
    {"sky", QT_TRANSLATE_NOOP("ReceiverDocks", "Sky"), Qt::RightDockWidgetArea, [] () -> ReceiverView * { return new SkyView; }},
    {"position", QT_TRANSLATE_NOOP("ReceiverDocks", "Position"), Qt::RightDockWidgetArea,
     [] () -> ReceiverView * { return new PositionView; }},
    {"signals", QT_TRANSLATE_NOOP("ReceiverDocks", "Signals"), Qt::BottomDockWidgetArea,
     [] () -> ReceiverView * { return new SignalsView; }},
    {"history", QT_TRANSLATE_NOOP("ReceiverDocks", "History"), Qt::BottomDockWidgetArea,
     [] () -> ReceiverView * { return new HistoryView; }},
};

QString settingsKey(const char *view, const char *option)
{
    return QStringLiteral("views/%1/%2").arg(QLatin1String(view), QLatin1String(option));
}

} // namespace

ReceiverDocks::ReceiverDocks(ReceiverState &state, QMainWindow &window)
    : QObject(&window)
    , m_state(state)
{
    for (const ViewKind &kind : kViews) {
        ReceiverView *view = kind.make();
        auto *dock = new QDockWidget(QCoreApplication::translate("ReceiverDocks", kind.title), &window);
        dock->setObjectName(QStringLiteral("dock-%1").arg(QLatin1String(kind.name)));
        dock->setWidget(view);
        window.addDockWidget(kind.area, dock);
        connect(view, &ReceiverView::refreshWanted, this, [this, view] { refresh(view); });
        m_docks << dock;
        m_views << view;
    }
    connect(&m_state, &ReceiverState::changed, this, &ReceiverDocks::refreshVisibleViews);

    auto *position = viewOf<PositionView>();
    connect(position, &PositionView::referencePointChosen, this,
            [this](double lat, double lon, double height) { m_state.setReferencePoint(lat, lon, height); });
    connect(position, &PositionView::referencePointCleared, this, [this] { m_state.clearReferencePoint(); });
    connect(position, &PositionView::statisticsResetRequested, this, [this] { m_state.resetStatistics(); });

    QSettings settings;
    auto *sky = viewOf<SkyView>();
    sky->setTrailsShown(settings.value(settingsKey("sky", "trails"), false).toBool());
    sky->setHiddenSystems(settings.value(settingsKey("sky", "hiddenSystems")).toStringList());
    auto *signalBars = viewOf<SignalsView>();
    signalBars->setThreshold(settings.value(settingsKey("signals", "threshold"), signalBars->threshold()).toDouble());
}

ReceiverDocks::~ReceiverDocks() = default;

void ReceiverDocks::addToggleActions(QMenu *menu) const
{
    for (QDockWidget *dock : m_docks)
        menu->addAction(dock->toggleViewAction());
}

void ReceiverDocks::saveSettings() const
{
    QSettings settings;
    const auto *sky = viewOf<SkyView>();
    settings.setValue(settingsKey("sky", "trails"), sky->trailsShown());
    settings.setValue(settingsKey("sky", "hiddenSystems"), sky->hiddenSystems());
    settings.setValue(settingsKey("signals", "threshold"), viewOf<SignalsView>()->threshold());
}

void ReceiverDocks::refreshVisibleViews()
{
    const bool handingOut = !m_waiting.isEmpty();
    m_waiting.clear();
    for (ReceiverView *view : qAsConst(m_views)) {
        if (view->isVisible())
            m_waiting << view;
    }
    if (m_waiting.isEmpty())
        return;
    m_snapshot = m_state.snapshot();
    if (!handingOut)
        handOutNext();
}

// One view per turn of the event loop: each paints before the next is given the
// snapshot, so that no single turn paints all of them and the window stays responsive.
void ReceiverDocks::handOutNext()
{
    if (m_waiting.isEmpty())
        return;
    m_waiting.takeFirst()->showSnapshot(m_snapshot);
    if (!m_waiting.isEmpty())
        QTimer::singleShot(0, this, &ReceiverDocks::handOutNext);
}

void ReceiverDocks::refresh(ReceiverView *view)
{
    view->showSnapshot(m_state.snapshot());
}

int ReceiverDocks::viewCount()
{
    return int(std::size(kViews));
}

int ReceiverDocks::savePictures(ReceiverState &state, const QString &directory, QTextStream &out)
{
    const ReceiverSnapshot snapshot = state.snapshot();
    int written = 0;
    for (const ViewKind &kind : kViews) {
        std::unique_ptr<ReceiverView> view(kind.make());
        view->resize(800, 600);
        view->show();
        view->showSnapshot(snapshot);
        QCoreApplication::processEvents();
        written += writePicture(*view, directory, QStringLiteral("view-%1").arg(QLatin1String(kind.name)), out);
    }
    return written;
}
