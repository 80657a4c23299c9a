// The tools of every picture: colours in linear light, gradients, noise, and random numbers with fixed
// results. Lengths are in units of a canvas.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

/// Red, green and blue in linear light. A screen shows 0 to 1; brighter light is toned down when the picture
/// is written.
struct Colour {
    float r = 0, g = 0, b = 0;
};

constexpr Colour operator+(Colour a, Colour b) {
    return {a.r + b.r, a.g + b.g, a.b + b.b};
}
constexpr Colour operator*(Colour a, float k) {
    return {a.r * k, a.g * k, a.b * k};
}
constexpr Colour operator*(Colour a, Colour b) {
    return {a.r * b.r, a.g * b.g, a.b * b.b};
}
constexpr Colour Mix(Colour a, Colour b, float t) {
    return a * (1 - t) + b * t;
}

constexpr float pi = 3.14159265f;

constexpr float Mix(float a, float b, float t) {
    return a + (b - a) * t;
}
constexpr float Unit(float x) {
    return x < 0 ? 0.0f : x > 1 ? 1.0f : x;
}
/// Returns 0 below `from` and 1 above `to`, with a soft transition. `from` may be the greater one.
constexpr float Ramp(float from, float to, float x) {
    const float t = Unit((x - from) / (to - from));
    return t * t * (3 - 2 * t);
}
/// Returns a bell curve of height 1 around 0.
inline float Bell(float x) {
    return std::exp(-x * x);
}

/// Returns the colour that a screen shows for 0xRRGGBB.
inline Colour Rgb(unsigned hex) {
    const auto linear = [](unsigned byte) {
        const float v = static_cast<float>(byte & 255) / 255;
        return v <= 0.04045f ? v / 12.92f : std::pow((v + 0.055f) / 1.055f, 2.4f);
    };
    return {linear(hex >> 16), linear(hex >> 8), linear(hex)};
}

/// Colours along a line. They are mixed in steps that look even to the eye, unlike in linear light.
class Gradient {
public:
    struct Stop {
        float at;
        unsigned hex;
    };
    Gradient(std::initializer_list<Stop> stops) {
        for (const Stop &stop : stops) {
            const Colour c = Rgb(stop.hex);
            stops_.push_back({stop.at, {std::cbrt(c.r), std::cbrt(c.g), std::cbrt(c.b)}});
        }
    }
    Colour At(float t) const {
        std::size_t i = 1;
        while (i + 1 < stops_.size() && t > stops_[i].at)
            ++i;
        const auto &a = stops_[i - 1], &b = stops_[i];
        const Colour c = Mix(a.root, b.root, Unit((t - a.at) / (b.at - a.at)));
        return c * c * c;
    }

private:
    struct Root {
        float at;
        Colour root;
    };
    std::vector<Root> stops_;
};

constexpr std::uint32_t Scramble(std::uint32_t x) {
    x = (x ^ (x >> 16)) * 0x7feb352du;
    x = (x ^ (x >> 15)) * 0x846ca68bu;
    return x ^ (x >> 16);
}

/// A random source with the same numbers on every machine, which the standard distributions do not guarantee.
class Random {
public:
    explicit Random(std::uint32_t seed) : state_{Scramble(seed + 0x9e3779b9u)} {}
    /// Returns a number from 0 up to, but not including, 1.
    float Next() {
        state_ += 0x9e3779b9u;
        return static_cast<float>(Scramble(state_) >> 8) / 16777216.0f;
    }
    float Between(float low, float high) { return Mix(low, high, Next()); }
    /// Returns a number around 0, mostly within -1 to 1.
    float Bell_Shaped() { return (Next() + Next() + Next() + Next() - 2) * 1.2f; }

private:
    std::uint32_t state_;
};

/// Returns smooth noise, about -1 to 1, with features about one unit wide.
inline float Noise(float x, float y, std::uint32_t seed) {
    const float fx = std::floor(x), fy = std::floor(y);
    const auto ix = static_cast<std::int32_t>(fx), iy = static_cast<std::int32_t>(fy);
    const auto corner = [&](int dx, int dy) {
        const auto h = Scramble(static_cast<std::uint32_t>(ix + dx) * 0x1f1f1f1fu ^
                                Scramble(static_cast<std::uint32_t>(iy + dy) + seed * 0x68e31da4u));
        const float gx = static_cast<float>(h & 0xffff) / 32768.0f - 1;
        const float gy = static_cast<float>(h >> 16) / 32768.0f - 1;
        return gx * (x - fx - static_cast<float>(dx)) + gy * (y - fy - static_cast<float>(dy));
    };
    const auto fade = [](float t) { return t * t * t * (t * (t * 6 - 15) + 10); };
    const float u = fade(x - fx), v = fade(y - fy);
    return 1.5f * Mix(Mix(corner(0, 0), corner(1, 0), u), Mix(corner(0, 1), corner(1, 1), u), v);
}

/// Returns noise of several octaves, each half as wide as the one before and `gain` times as strong.
inline float Fractal(float x, float y, std::uint32_t seed, int octaves, float gain = 0.5f) {
    float sum = 0, strength = 1, total = 0;
    for (int i = 0; i < octaves; ++i) {
        sum += strength * Noise(x, y, seed + static_cast<std::uint32_t>(i) * 101);
        total += strength;
        strength *= gain;
        const float turned = 1.6f * x - 1.2f * y; // rotated, so that the grids of two octaves never line up
        y = 1.2f * x + 1.6f * y;
        x = turned;
    }
    return sum / total;
}

/// Returns noise like Fractal's, but from 0 to 1 and with sharp crests.
inline float Crests(float x, float y, std::uint32_t seed, int octaves, float gain = 0.5f) {
    float sum = 0, strength = 1, total = 0;
    for (int i = 0; i < octaves; ++i) {
        const float n =
            1 - std::min(std::abs(Noise(x, y, seed + static_cast<std::uint32_t>(i) * 101)) * 1.4f, 1.0f);
        sum += strength * n * n;
        total += strength;
        strength *= gain;
        const float turned = 1.6f * x - 1.2f * y;
        y = 1.2f * x + 1.6f * y;
        x = turned;
    }
    return sum / total;
}
