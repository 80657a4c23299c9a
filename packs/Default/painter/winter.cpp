// December, January and February.
#include "scenery.h"

namespace {

/// A snow-covered range with the last light on its faces towards the right.
void Snowy_Range(Canvas &canvas, const Ridge &ridge, Colour shadow, Colour light, Colour haze, float fade) {
    canvas.Below(ridge, [&](float x, float y, float depth) {
        const auto relief = [&](float px, float py) {
            const float bend = 40 * Noise(px / 170, py / 170, ridge.seed + 60);
            return Crests((px + bend) / 230, (py + bend - depth * 0.35f) / 300, ridge.seed + 61, 6, 0.5f);
        };
        const float slope = (relief(x - 5, y + 2) - relief(x + 5, y - 2)) * 9 +
                            (ridge(x + 12) - ridge(x - 12)) * 0.022f * std::exp(-depth / 90);
        const float lit = Ramp(-0.5f, 0.75f, slope + 0.15f * Noise(x / 60, y / 60, 5));
        const float rock =
            Ramp(0.3f, 0.62f, std::abs(slope) * 0.3f + 0.4f * Fractal(x / 26, y / 50, 77, 5, 0.65f));
        Colour face = Mix(shadow, light, lit * Ramp(-60, 10, 330 - depth));
        face = Mix(face, shadow * 0.62f, rock * 0.75f);
        return Mix(face, haze, 1 - std::exp(-depth * depth / (fade * fade)));
    });
}

/// Untouched snow with long soft waves.
void Snowfield(Canvas &canvas, const Ridge &ridge, Colour light, Colour shadow, float fade) {
    canvas.Below(ridge, [&](float x, float y, float depth) {
        const float wave = Fractal((x + y * 0.8f) / 420, depth / 95, ridge.seed + 9, 4, 0.4f);
        const float t = Unit(depth / fade) * 0.75f + 0.4f * Ramp(-0.35f, 0.4f, wave);
        return Mix(light, shadow, Unit(t)) * (1 + 0.02f * Noise(x / 1.5f, y / 1.5f, 6));
    });
}

/// Curtains of northern light over the horizon, seen through `height` pixels of sky.
Colour Aurora_At(float x, float y, float horizon) {
    const float climb = 0.1f + (horizon - y) / horizon * 0.75f;
    Colour sum;
    constexpr int steps = 110;
    for (int i = 0; i < steps; ++i) {
        const float high = static_cast<float>(i) / steps, distance = (1 + high * 0.85f) / climb;
        const float px = (x - 760) / 900 * distance, pz = distance;
        const float warp = 0.9f * Noise(px * 0.55f, pz * 0.55f, 41);
        const float line = Fractal(px * 0.26f + 0.35f * warp, pz * 0.33f + 4.4f + 0.2f * warp, 46, 2, 0.35f);
        const float ribbon =
            Bell(line / 0.028f) * Ramp(-0.45f, 0.4f, Noise(px * 0.35f + 3, pz * 0.2f, 44) + 0.1f);
        const float rays = 0.55f + 0.75f * Fractal(px * 7, pz * 7, 45, 3);
        const Colour hue =
            Mix(Mix(Colour{0.10f, 1.0f, 0.46f}, Colour{0.06f, 0.6f, 0.66f}, Ramp(0.1f, 0.45f, high)),
                Colour{0.42f, 0.14f, 0.72f}, Ramp(0.3f, 0.95f, high));
        sum = sum + hue * (ribbon * std::max(rays, 0.0f) * Ramp(0, 0.05f, high) * std::exp(-high * 2.6f));
    }
    return sum * (7.5f / steps) * Ramp(0.1f, 0.26f, climb);
}

/// A lit window or door with its frame.
void Lit_Pane(Canvas &canvas, float left, float top, float right, float bottom, Colour light) {
    canvas.Shape(
        left - 1, top - 1, right + 1, bottom + 1,
        [&](float x, float y) {
            return canvas.Edge(std::min(std::min(x - left, right - x), std::min(y - top, bottom - y)));
        },
        [&](float x, float y) {
            const float bar = std::min(std::abs(x - (left + right) / 2), std::abs(y - (top + bottom) / 2));
            return light * (bar < 0.9f ? 0.12f : 1.1f - 0.5f * (y - top) / (bottom - top));
        });
}

void Cabin(Canvas &canvas, float x, float foot) {
    const Colour wall = Rgb(0x2a2030), snow = Rgb(0x8fa3cc), snow_shade = Rgb(0x4a5f96),
                 warm{2.3f, 1.05f, 0.27f};
    const auto box = [&](float left, float top, float right, float bottom, Colour colour) {
        canvas.Shape(
            left, top, right, bottom,
            [&](float px, float py) {
                return canvas.Edge(
                    std::min(std::min(px - left, right - px), std::min(py - top, bottom - py)));
            },
            [&](float px, float py) { return colour * (1 + 0.2f * Noise(px / 30, py / 2.2f, 8)); });
    };
    box(x - 72, foot - 58, x + 72, foot + 6, wall);
    // The gable with its load of snow.
    canvas.Shape(
        x - 100, foot - 130, x + 100, foot - 40,
        [&](float px, float py) {
            return canvas.Edge(std::min(py - (foot - 122) - std::abs(px - x) * 0.74f, foot - 50 - py));
        },
        [&](float, float) { return wall * 0.9f; });
    for (const float side : {-1.0f, 1.0f}) {
        canvas.Stroke(x, foot - 122, 17, x + side * 96, foot - 51, 15, snow_shade);
        canvas.Stroke(x, foot - 126, 11, x + side * 95, foot - 56, 9, snow, 0.9f, 2);
    }
    box(x + 34, foot - 140, x + 52, foot - 92, wall);
    canvas.Stroke(x + 33, foot - 141, 7, x + 53, foot - 141, 7, snow);
    Lit_Pane(canvas, x - 52, foot - 42, x - 24, foot - 12, warm);
    Lit_Pane(canvas, x + 26, foot - 42, x + 54, foot - 12, warm);
    Lit_Pane(canvas, x - 9, foot - 86, x + 9, foot - 66, warm * 0.8f);
    box(x - 13, foot - 42, x + 13, foot + 4, Rgb(0x120c14));
    for (float rise = 0; rise < 230; rise += 3) {
        const float drift = rise * 0.22f + 16 * Noise(rise / 60, 2, 12);
        canvas.Disc(x + 43 + drift, foot - 148 - rise, 3 + rise * 0.06f, Rgb(0x7d8cb8),
                    0.13f * (1 - rise / 230), 8 + rise * 0.12f);
    }
    // Light on the snow before the house.
    canvas.Each(
        [&](float px, float py, Colour &pixel) {
            for (const float lamp : {-38.0f, 40.0f}) {
                const float down = (py - foot - 4) / 62,
                            across = (px - x - lamp) / (26 + 44 * std::max(down, 0.0f));
                if (down > 0)
                    pixel = pixel + warm * (0.16f * Bell(across) * std::exp(-down * 1.5f));
            }
        },
        foot, foot + 260);
    canvas.Glow(x - 38, foot - 26, 46, warm * 0.10f);
    canvas.Glow(x + 40, foot - 26, 46, warm * 0.10f);
}

} // namespace

void January(Canvas &canvas) {
    Random random(101);
    Sky(canvas, {{0, 0x20386e}, {0.3f, 0x4a64a3}, {0.52f, 0x9292bd}, {0.68f, 0xdcaeb4}, {0.82f, 0xf7cfb4}},
        860);
    Stars(
        canvas, random, 260, [](float, float y) { return Ramp(330, 0, y); }, 0.9f);
    const Coarse<Cloud> clouds(4, [](float x, float y) {
        return Cloud_At(x / 900, y / 150, 21, -0.18f + 0.2f * Bell((y - 380) / 150), 0.6f, 0.5f, 0.8f);
    });
    canvas.Each(
        [&](float x, float y, Colour &pixel) {
            const Cloud c = clouds.At(x, y);
            pixel = Mix(pixel, Mix(Rgb(0x8d8fbd), Rgb(0xf7bfb3), 0.5f + 0.5f * c.light),
                        c.cover * 0.5f * Ramp(120, 330, y));
        },
        0, 700);
    Snowy_Range(canvas, {560, 130, 700, 33, 0.8f}, Rgb(0x8893c4), Rgb(0xf3bcb9), Rgb(0xd9b9c6), 260);
    // The main peak left of the middle.
    const auto peak = [](float x) {
        return 250 * std::exp(-std::abs(x - 600) / 270) + 90 * std::exp(-std::abs(x - 1010) / 170);
    };
    Ridge range{610, 95, 520, 12, 0.85f};
    struct Peaked : Ridge {
        decltype(peak) rise;
        float operator()(float x) const { return Ridge::operator()(x) - rise(x); }
    };
    const Peaked main_range{range, peak};
    const Colour shadow = Rgb(0x52649f), light = Rgb(0xfbc4ae);
    canvas.Below(main_range, [&](float x, float y, float depth) {
        const auto relief = [&](float px, float py) {
            const float bend = 46 * Noise(px / 150, py / 150, 71);
            return Crests((px + bend + (px - 600) * 0.2f) / 250, (py + bend) / 330, 72, 6, 0.5f);
        };
        const float slope = (relief(x - 4, y + 2) - relief(x + 4, y - 2)) * 12 +
                            (main_range(x + 14) - main_range(x - 14)) * 0.03f * std::exp(-depth / 110);
        const float lit = Ramp(-0.45f, 0.8f, slope);
        const float rock =
            Ramp(0.34f, 0.62f, std::abs(slope) * 0.28f + 0.42f * Fractal(x / 22, y / 46, 78, 5, 0.66f));
        Colour face = Mix(shadow, light, lit * Ramp(420, 120, depth + (y - 500) * 0.4f));
        face = Mix(face, Rgb(0x3d4a7c), rock * 0.6f);
        return Mix(face, Rgb(0xb5aacb), Ramp(540, 800, y) * 0.95f);
    });
    const Colour needles[] = {Rgb(0x7f8bb8), Rgb(0x54679f), Rgb(0x31477c), Rgb(0x182a52)};
    const Ridge hills[] = {{735, 40, 620, 51}, {805, 55, 700, 52}, {885, 50, 800, 53}};
    for (int i = 0; i < 3; ++i) {
        const auto k = static_cast<float>(i);
        Snowfield(canvas, hills[i], Mix(Rgb(0xbdb6d6), Rgb(0xb2bde0), k / 2),
                  Mix(Rgb(0x9d9fca), Rgb(0x6f86bf), k / 2), 150);
        Conifers(canvas, random, hills[i], -20, 1940, 9 + 9 * k, 14 + 16 * k, 40 + 42 * k, 26 + 18 * k,
                 {needles[i], Rgb(0xc5cdec), 0.25f + 0.15f * k});
    }
    const Ridge front{985, 46, 900, 58};
    Snowfield(canvas, front, Rgb(0xc3cdec), Rgb(0x4c67a6), 190);
    for (const auto &[x, height] : std::initializer_list<std::pair<float, float>>{
             {420, 150}, {325, 230}, {1640, 130}, {1730, 210}, {215, 380}, {1850, 360}, {55, 620}})
        Conifer(canvas, random, x, front(x) + 20 + height * 0.2f, height,
                {Rgb(0x22376a), Rgb(0xd3dcf5), 0.85f});
    canvas.Bloom(0.75f, 40, 0.4f);
    Vignette(canvas, 0.22f);
}

void February(Canvas &canvas) {
    Random random(202);
    constexpr float horizon = 640;
    Sky(canvas, {{0, 0x040a20}, {0.5f, 0x0a1c3f}, {0.85f, 0x15375a}, {1, 0x2a5a70}}, horizon + 10);
    const Coarse<Colour> aurora(
        3, [](float x, float y) { return y < horizon ? Aurora_At(x, y, horizon) : Colour{}; });
    canvas.Each([&](float x, float y, Colour &pixel) { pixel = pixel + aurora.At(x, y); }, 0, horizon);
    const Ridge far{590, 52, 480, 62, 0.45f}, near{631, 13, 500, 64};
    canvas.Below(
        far,
        [&](float x, float y, float depth) {
            const float snow = Ramp(
                0.05f, 0.4f, Fractal(x / 40, (y + depth) / 60, 66, 5, 0.6f) + 0.2f * Noise(x / 120, 1, 67));
            return Mix(Mix(Rgb(0x10263f), Rgb(0x3d6a80), snow * 0.8f), Rgb(0x255065),
                       Ramp(0, 90, depth) * 0.7f);
        },
        horizon);
    canvas.Below(
        near, [](float, float, float) { return Rgb(0x07131f); }, horizon);
    Conifers(canvas, random, near, -10, 1930, 7, 8, 38, 12, {Rgb(0x07131f), {}, 0});
    Water(canvas, {horizon, picture_height, 0.02f, Rgb(0x123149), 0.45f, 68});
    // Drawn after the reflection, because the ice does not mirror such faint light. They cover only sky.
    Stars(canvas, random, 1900, [](float, float y) { return y < 540 ? Ramp(horizon, 200, y) * 0.9f : 0; });
    // The ice: drifted snow with a dull sheen.
    canvas.Each(
        [&](float x, float y, Colour &pixel) {
            const float near_by = y - horizon + 40, u = (x - 960) / near_by, w = std::log(near_by) * 6;
            const float drift =
                Ramp(-0.02f, 0.42f, Fractal(u * 0.8f, w * 0.75f, 69, 5, 0.45f) + 0.3f * Ramp(860, 1080, y));
            const Colour sheen = aurora.At(x, std::max(2 * horizon - y - 60, 20.0f)) * 0.22f;
            pixel = Mix(pixel, Rgb(0x2d5a78) + sheen, drift * 0.8f * Ramp(0, 30, y - horizon));
        },
        horizon);
    canvas.Bloom(0.25f, 46, 0.35f);
    Vignette(canvas, 0.3f);
}

void December(Canvas &canvas) {
    Random random(1212);
    constexpr float moon_x = 560, moon_y = 215;
    Sky(canvas, {{0, 0x0a1533}, {0.4f, 0x1a2d5e}, {0.75f, 0x35508a}, {1, 0x5a74ab}}, 800);
    Stars(
        canvas, random, 700, [](float, float y) { return Ramp(560, 100, y) * 0.8f; }, 0.8f);
    const Coarse<Cloud> clouds(4, [](float x, float y) {
        return Cloud_At(x / 620, y / 260, 1221, -0.1f, (moon_x - x) / 500, (moon_y - y) / 500, 0.7f);
    });
    canvas.Glow(moon_x, moon_y, 150, Colour{0.13f, 0.17f, 0.28f});
    canvas.Disc(moon_x, moon_y, 40, Rgb(0xf6f1de) * 1.1f, 1, 1.5f);
    canvas.Shape(
        moon_x - 48, moon_y - 48, moon_x + 48, moon_y + 48,
        [&](float x, float y) {
            return canvas.Edge(40 - std::hypot(x - moon_x, y - moon_y), 2) * 0.28f *
                   Ramp(0, 0.35f, Fractal(x / 38, y / 38, 1230, 4));
        },
        [](float, float) { return Rgb(0x9aa3b8); });
    canvas.Each(
        [&](float x, float y, Colour &pixel) {
            const Cloud c = clouds.At(x, y);
            const float glow = std::exp(-std::hypot(x - moon_x, y - moon_y) / 260);
            pixel = Mix(pixel, Mix(Rgb(0x2b3f72), Rgb(0xb4c0dc), Unit(glow * (0.75f + 0.5f * c.light))),
                        c.cover * 0.55f);
        },
        0, 800);
    const Ridge hills[] = {{640, 80, 760, 1241}, {730, 62, 620, 1242}, {808, 44, 700, 1243}};
    for (int i = 0; i < 3; ++i) {
        const auto k = static_cast<float>(i);
        Snowfield(canvas, hills[i], Mix(Rgb(0x7389bd), Rgb(0x8298c8), k / 2),
                  Mix(Rgb(0x5a72aa), Rgb(0x445c98), k / 2), 160);
        Conifers(canvas, random, hills[i], -20, 1940, 8 + 8 * k, 16 + 16 * k, 44 + 40 * k, 30 + 10 * k,
                 {Mix(Rgb(0x475f97), Rgb(0x1c2d58), k / 2), Rgb(0x9db0d8), 0.3f + 0.15f * k});
    }
    const Ridge yard{872, 26, 800, 1250}, front{1000, 40, 900, 1251};
    Snowfield(canvas, yard, Rgb(0x8ea3d0), Rgb(0x3f5896), 200);
    for (const auto &[x, height] : std::initializer_list<std::pair<float, float>>{{250, 270},
                                                                                  {330, 200},
                                                                                  {690, 230},
                                                                                  {770, 150},
                                                                                  {610, 130},
                                                                                  {1190, 130},
                                                                                  {1500, 180},
                                                                                  {1590, 120}})
        Conifer(canvas, random, x, yard(x) + 26, height, {Rgb(0x14234a), Rgb(0xa9bce2), 0.7f});
    Cabin(canvas, 470, 908);
    Snowfield(canvas, front, Rgb(0x7f95c8), Rgb(0x2c437c), 150);
    for (const auto &[x, height] :
         std::initializer_list<std::pair<float, float>>{{175, 330}, {1745, 250}, {45, 560}, {1880, 480}})
        Conifer(canvas, random, x, front(x) + 30 + height * 0.15f, height,
                {Rgb(0x10204a), Rgb(0xa3b7e0), 0.7f});
    Snowfall(canvas, random, 1100, Rgb(0xdfe8ff), 3.2f, 0.75f);
    canvas.Bloom(0.6f, 36, 0.45f);
    Vignette(canvas, 0.3f);
}
