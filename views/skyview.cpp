// SPDX-License-Identifier: BSD-3-Clause
#include "skyview.h"

#include "viewpalette.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>
#include <QtMath>
#include <algorithm>

namespace {

constexpr double kMarkerRadius = 11;
constexpr int kLegendWidth = 140;
const QColor kTrailColour(0x5c, 0x6b, 0xc0);
const QColor kGridColour(0xb0, 0xb8, 0xc4);

const QVector<GnssSystem> &filterableSystems()
{
    static const QVector<GnssSystem> systems = knownSystems() + QVector<GnssSystem>{GnssSystem::Unknown};
    return systems;
}

class SkyCanvas : public QWidget
{
public:
    SkyCanvas(const SkyModel &model, QWidget *parent) : QWidget(parent), m_model(model)
    {
        setAutoFillBackground(true);
        QPalette colours = palette();
        colours.setColor(QPalette::Window, Qt::white);
        setPalette(colours);
        setMinimumSize(320, 240);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF area = QRectF(rect()).adjusted(0, 0, -kLegendWidth, 0);
        m_centre = area.center();
        m_radius = std::max(10.0, std::min(area.width(), area.height()) / 2 - 24);
        drawGrid(painter);
        drawTrails(painter);
        drawMarkers(painter);
        drawLegend(painter, QRectF(area.right(), 0, kLegendWidth, height()));
    }

private:
    QPointF toScreen(QPointF disc) const { return m_centre + QPointF(disc.x(), -disc.y()) * m_radius; }

    void drawGrid(QPainter &painter) const
    {
        painter.setPen(QPen(kGridColour, 1));
        painter.setBrush(QColor(0xf6, 0xf8, 0xfb));
        painter.drawEllipse(m_centre, m_radius, m_radius);
        painter.setBrush(Qt::NoBrush);
        for (int ring = 1; ring < 3; ++ring)
            painter.drawEllipse(m_centre, m_radius * ring / 3, m_radius * ring / 3);
        for (int azimuth = 0; azimuth < 360; azimuth += 30) {
            QPointF rim;
            SkyModel::toDisc(0, azimuth, &rim);
            painter.drawLine(m_centre, toScreen(rim));
        }
        QFont small = font();
        small.setPixelSize(10);
        painter.setFont(small);
        painter.setPen(QColor(0x70, 0x78, 0x84));
        for (int elevation = 0; elevation < 90; elevation += 30) {
            const double y = m_centre.y() - m_radius * (90 - elevation) / 90;
            painter.drawText(QPointF(m_centre.x() + 3, y + 11), QStringLiteral("%1°").arg(elevation));
        }
        QFont bold = font();
        bold.setPixelSize(13);
        bold.setBold(true);
        painter.setFont(bold);
        painter.setPen(QColor(0x30, 0x30, 0x30));
        const struct { const char *name; double azimuth; } cardinals[] = {{"N", 0}, {"E", 90}, {"S", 180}, {"W", 270}};
        for (const auto &cardinal : cardinals) {
            QPointF rim;
            SkyModel::toDisc(0, cardinal.azimuth, &rim);
            const QPointF at = m_centre + QPointF(rim.x(), -rim.y()) * (m_radius + 13);
            painter.drawText(QRectF(at - QPointF(10, 10), QSizeF(20, 20)), Qt::AlignCenter, QLatin1String(cardinal.name));
        }
    }

    // Older stretches of a trail fade out.
    void drawTrails(QPainter &painter) const
    {
        for (const SkyTrack &track : m_model.trails()) {
            const int segments = track.points.size() - 1;
            for (int i = 0; i < segments; ++i) {
                QColor colour = kTrailColour;
                colour.setAlpha(30 + 170 * (i + 1) / segments);
                painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap));
                painter.drawLine(toScreen(track.points.at(i)), toScreen(track.points.at(i + 1)));
            }
        }
    }

    void drawMarkers(QPainter &painter) const
    {
        QFont labelFont = font();
        labelFont.setPixelSize(9);
        labelFont.setBold(true);
        painter.setFont(labelFont);
        for (const SkyMarker &marker : m_model.markers()) {
            const QPointF at = toScreen(marker.position);
            drawMarkerSymbol(painter, at, marker.colour, marker.filled);
            const bool darkFill = marker.filled && marker.colour.lightnessF() < 0.55;
            painter.setPen(darkFill ? Qt::white : QColor(0x21, 0x21, 0x21));
            painter.drawText(QRectF(at - QPointF(16, 8), QSizeF(32, 16)), Qt::AlignCenter, marker.label);
        }
    }

    static void drawMarkerSymbol(QPainter &painter, QPointF at, const QColor &colour, bool filled, double radius = kMarkerRadius)
    {
        painter.setPen(filled ? QPen(colour.darker(130), 1) : QPen(colour, 2.5));
        painter.setBrush(filled ? QBrush(colour) : QBrush(Qt::white));
        painter.drawEllipse(at, radius, radius);
    }

    void drawLegend(QPainter &painter, const QRectF &area) const
    {
        QFont text = font();
        text.setPixelSize(11);
        QFont title = text;
        title.setBold(true);
        double y = area.top() + 16;
        const double x = area.left() + 8;
        auto entry = [&](const QColor &colour, bool filled, const QString &label) {
            drawMarkerSymbol(painter, QPointF(x + 6, y), colour, filled, 5.5);
            painter.setPen(QColor(0x30, 0x30, 0x30));
            painter.drawText(QPointF(x + 18, y + 4), label);
            y += 18;
        };
        painter.setFont(title);
        painter.setPen(QColor(0x30, 0x30, 0x30));
        painter.drawText(QPointF(x, y), SkyView::tr("C/N0 (dB-Hz)"));
        y += 18;
        painter.setFont(text);
        const QVector<ViewPalette::Cn0Band> &bands = ViewPalette::cn0Bands();
        for (auto band = bands.crbegin(); band != bands.crend(); ++band)
            entry(band->colour, true, band->label);
        entry(ViewPalette::unknownColour(), true, SkyView::tr("unknown"));
        y += 8;
        entry(ViewPalette::unknownColour(), true, SkyView::tr("used in fix"));
        entry(ViewPalette::unknownColour(), false, SkyView::tr("tracked only"));
        y += 8;
        const int used = int(std::count_if(m_model.markers().cbegin(), m_model.markers().cend(),
                                           [](const SkyMarker &marker) { return marker.filled; }));
        painter.drawText(QPointF(x, y), SkyView::tr("%1 shown, %2 used").arg(m_model.markers().size()).arg(used));
    }

    const SkyModel &m_model;
    QPointF m_centre;
    double m_radius = 1;
};

} // namespace

bool SkyModel::toDisc(double elevation, double azimuth, QPointF *point)
{
    if (!std::isfinite(elevation) || !std::isfinite(azimuth) || std::abs(elevation) > 90)
        return false;
    const double radius = (90 - std::max(elevation, 0.0)) / 90;
    const double angle = qDegreesToRadians(std::fmod(azimuth, 360.0));
    *point = QPointF(radius * std::sin(angle), radius * std::cos(angle));
    return true;
}

void SkyModel::setSystemShown(GnssSystem system, bool shown)
{
    m_hiddenSystems.removeAll(system);
    if (!shown)
        m_hiddenSystems << system;
}

void SkyModel::update(const ReceiverSnapshot &snapshot)
{
    m_markers.clear();
    m_trails.clear();
    m_presentSystems.clear();
    auto notePresent = [this](GnssSystem system) {
        if (!m_presentSystems.contains(system))
            m_presentSystems << system;
    };
    for (const SatelliteInfo &satellite : snapshot.satellites) {
        notePresent(satellite.system);
        SkyMarker marker;
        if (!isSystemShown(satellite.system) || !toDisc(satellite.elevation, satellite.azimuth, &marker.position))
            continue;
        marker.system = satellite.system;
        marker.prn = satellite.prn;
        marker.label = satelliteLabel(satellite.system, satellite.prn);
        marker.colour = ViewPalette::cn0Colour(satellite.bestCn0());
        marker.filled = satellite.used;
        m_markers << marker;
    }
    for (const SatelliteTrail &trail : snapshot.trails) {
        notePresent(trail.system);
        if (!m_trailsShown || !isSystemShown(trail.system))
            continue;
        SkyTrack track{trail.system, trail.prn, {}};
        for (const SkyPoint &point : trail.points) {
            QPointF disc;
            if (toDisc(point.elevation, point.azimuth, &disc))
                track.points << disc;
        }
        if (track.points.size() > 1)
            m_trails << track;
    }
    std::sort(m_presentSystems.begin(), m_presentSystems.end(),
              [](GnssSystem a, GnssSystem b) { return systemOrder(a) < systemOrder(b); });
}

SkyView::SkyView(QWidget *parent) : ReceiverView(parent)
{
    QHBoxLayout *controls = controlRow();
    m_filterRow = new QHBoxLayout;
    m_filterRow->setSpacing(2);
    controls->addLayout(m_filterRow);
    controls->addStretch();
    m_trailsBox = new QCheckBox(tr("Trails"), this);
    controls->addWidget(m_trailsBox);
    m_canvas = new SkyCanvas(m_model, this);
    pictureColumn()->addWidget(m_canvas);
    connect(m_trailsBox, &QCheckBox::toggled, this, &SkyView::setTrailsShown);
}

void SkyView::setTrailsShown(bool shown)
{
    {
        const QSignalBlocker quiet(m_trailsBox);
        m_trailsBox->setChecked(shown);
    }
    m_model.setTrailsShown(shown);
    settingsChanged();
}

void SkyView::setHiddenSystems(const QStringList &names)
{
    for (GnssSystem system : filterableSystems())
        m_model.setSystemShown(system, !names.contains(systemName(system)));
    for (int i = 0; i < m_filterButtons.size(); ++i) {
        const QSignalBlocker quiet(m_filterButtons.at(i));
        m_filterButtons.at(i)->setChecked(m_model.isSystemShown(m_filterSystems.at(i)));
    }
    settingsChanged();
}

QStringList SkyView::hiddenSystems() const
{
    QStringList names;
    for (GnssSystem system : filterableSystems()) {
        if (!m_model.isSystemShown(system))
            names << systemName(system);
    }
    return names;
}

void SkyView::updateModel(const ReceiverSnapshot &snapshot)
{
    m_model.update(snapshot);
    updateFilterButtons();
}

void SkyView::redraw() { m_canvas->update(); }

// One button per system of the snapshot, remade only when the systems change.
void SkyView::updateFilterButtons()
{
    if (m_filterSystems == m_model.presentSystems())
        return;
    qDeleteAll(m_filterButtons);
    m_filterButtons.clear();
    m_filterSystems = m_model.presentSystems();
    for (GnssSystem system : m_model.presentSystems()) {
        auto *button = new QToolButton(this);
        button->setText(systemName(system));
        button->setCheckable(true);
        button->setToolTip(tr("Show or hide the %1 satellites").arg(systemName(system)));
        button->setChecked(m_model.isSystemShown(system));
        connect(button, &QToolButton::toggled, this, [this, system](bool shown) {
            m_model.setSystemShown(system, shown);
            settingsChanged();
        });
        m_filterRow->addWidget(button);
        button->show();
        m_filterButtons << button;
    }
    layout()->activate();
}
