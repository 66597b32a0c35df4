// SPDX-License-Identifier: BSD-3-Clause
#include "rxsimmath.h"

namespace rxsim {

namespace {
constexpr double kWgs84A = 6378137.0;
constexpr double kWgs84F = 1.0 / 298.257223563;
constexpr double kWgs84E2 = kWgs84F * (2.0 - kWgs84F);

quint64 splitMix(quint64 &state)
{
    quint64 z = (state += 0x9E3779B97F4A7C15ull);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

quint64 rotl(quint64 x, int k)
{
    return (x << k) | (x >> (64 - k));
}
} // namespace

Vec3 geodeticToEcef(double latitudeDeg, double longitudeDeg, double h)
{
    const double lat = latitudeDeg * kDegree;
    const double lon = longitudeDeg * kDegree;
    const double n = kWgs84A / std::sqrt(1.0 - kWgs84E2 * std::sin(lat) * std::sin(lat));
    return {(n + h) * std::cos(lat) * std::cos(lon), (n + h) * std::cos(lat) * std::sin(lon),
            (n * (1.0 - kWgs84E2) + h) * std::sin(lat)};
}

void ecefToGeodetic(const Vec3 &p, double &latitudeDeg, double &longitudeDeg, double &h)
{
    const double lon = std::atan2(p.y, p.x);
    const double r = std::sqrt(p.x * p.x + p.y * p.y);
    double lat = std::atan2(p.z, r * (1.0 - kWgs84E2));
    for (int i = 0; i < 6; ++i) {
        const double n = kWgs84A / std::sqrt(1.0 - kWgs84E2 * std::sin(lat) * std::sin(lat));
        h = r / std::cos(lat) - n;
        lat = std::atan2(p.z, r * (1.0 - kWgs84E2 * n / (n + h)));
    }
    const double n = kWgs84A / std::sqrt(1.0 - kWgs84E2 * std::sin(lat) * std::sin(lat));
    h = r / std::cos(lat) - n;
    latitudeDeg = lat / kDegree;
    longitudeDeg = lon / kDegree;
}

Vec3 ecefToEnu(const Vec3 &d, double latitudeDeg, double longitudeDeg)
{
    const double sl = std::sin(latitudeDeg * kDegree), cl = std::cos(latitudeDeg * kDegree);
    const double so = std::sin(longitudeDeg * kDegree), co = std::cos(longitudeDeg * kDegree);
    return {-so * d.x + co * d.y, -sl * co * d.x - sl * so * d.y + cl * d.z,
            cl * co * d.x + cl * so * d.y + sl * d.z};
}

Vec3 enuToEcef(const Vec3 &e, double latitudeDeg, double longitudeDeg)
{
    const double sl = std::sin(latitudeDeg * kDegree), cl = std::cos(latitudeDeg * kDegree);
    const double so = std::sin(longitudeDeg * kDegree), co = std::cos(longitudeDeg * kDegree);
    return {-so * e.x - sl * co * e.y + cl * co * e.z, co * e.x - sl * so * e.y + cl * so * e.z,
            cl * e.y + sl * e.z};
}

Random::Random(quint64 seed)
{
    quint64 s = seed;
    for (quint64 &word : m_state)
        word = splitMix(s);
}

quint64 Random::next()
{
    // xoshiro256**
    const quint64 result = rotl(m_state[1] * 5, 7) * 9;
    const quint64 t = m_state[1] << 17;
    m_state[2] ^= m_state[0];
    m_state[3] ^= m_state[1];
    m_state[1] ^= m_state[2];
    m_state[0] ^= m_state[3];
    m_state[2] ^= t;
    m_state[3] = rotl(m_state[3], 45);
    return result;
}

double Random::uniform()
{
    return double(next() >> 11) * (1.0 / 9007199254740992.0);
}

int Random::below(int n)
{
    return n <= 1 ? 0 : int(next() % quint64(n));
}

quint64 hashMix(quint64 a, quint64 b, quint64 c, quint64 d)
{
    quint64 state = a;
    quint64 h = splitMix(state);
    for (quint64 key : {b, c, d}) {
        state = h ^ key;
        h = splitMix(state);
    }
    return h;
}

double hashUniform(quint64 a, quint64 b, quint64 c, quint64 d)
{
    return double(hashMix(a, b, c, d) >> 11) * (1.0 / 9007199254740992.0);
}

SmoothNoise::SmoothNoise(quint64 key, double amplitude, double shortestPeriod, double longestPeriod)
{
    for (int i = 0; i < 3; ++i) {
        const double period = shortestPeriod + (longestPeriod - shortestPeriod) * hashUniform(key, quint64(i), 1);
        m_omega[i] = 2.0 * kPi / period;
        m_phase[i] = 2.0 * kPi * hashUniform(key, quint64(i), 2);
        m_amplitude[i] = amplitude / (i + 1.5) * 1.2;
    }
}

double SmoothNoise::at(double t) const
{
    double sum = 0.0;
    for (int i = 0; i < 3; ++i)
        sum += m_amplitude[i] * std::sin(m_omega[i] * t + m_phase[i]);
    return sum;
}

} // namespace rxsim
