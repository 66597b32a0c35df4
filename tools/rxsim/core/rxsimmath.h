// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtGlobal>

#include <cmath>

namespace rxsim {

constexpr double kPi = 3.14159265358979323846;
constexpr double kDegree = kPi / 180.0;
constexpr double kLightSpeed = 299792458.0;
constexpr double kEarthRotationRate = 7.2921151467e-5; // rad/s
constexpr double kGravity = 9.80665;

struct Vec3
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    Vec3 operator+(const Vec3 &o) const { return {x + o.x, y + o.y, z + o.z}; }
    Vec3 operator-(const Vec3 &o) const { return {x - o.x, y - o.y, z - o.z}; }
    Vec3 operator*(double s) const { return {x * s, y * s, z * s}; }
    double dot(const Vec3 &o) const { return x * o.x + y * o.y + z * o.z; }
    double norm() const { return std::sqrt(dot(*this)); }
};

// WGS84 ellipsoid.
Vec3 geodeticToEcef(double latitudeDeg, double longitudeDeg, double ellipsoidHeight);
void ecefToGeodetic(const Vec3 &ecef, double &latitudeDeg, double &longitudeDeg, double &ellipsoidHeight);
// East, north and up components of an Earth-fixed vector at a place, and back.
Vec3 ecefToEnu(const Vec3 &delta, double latitudeDeg, double longitudeDeg);
Vec3 enuToEcef(const Vec3 &enu, double latitudeDeg, double longitudeDeg);

// Pseudo-random numbers that are the same on every platform and library (the
// standard distributions are not), so a seed always gives the same bytes.
class Random
{
public:
    explicit Random(quint64 seed);
    quint64 next();
    double uniform(); // [0, 1)
    int below(int n); // [0, n)

private:
    quint64 m_state[4];
};

// A fixed number for a tuple of keys: per-satellite constants stay the same however
// often or in whatever order they are asked for.
quint64 hashMix(quint64 a, quint64 b = 0, quint64 c = 0, quint64 d = 0);
double hashUniform(quint64 a, quint64 b = 0, quint64 c = 0, quint64 d = 0); // [0, 1)

// A slow, smooth wander around zero: three sines with hashed periods and phases.
class SmoothNoise
{
public:
    SmoothNoise() = default;
    SmoothNoise(quint64 key, double amplitude, double shortestPeriod, double longestPeriod);
    double at(double seconds) const;

private:
    double m_amplitude[3] = {};
    double m_omega[3] = {};
    double m_phase[3] = {};
};

} // namespace rxsim
