// September, October and November.
#include "scenery.h"

namespace {

/// Draws mist over the picture so far, thickest along the line `y0`.
void Mist(Canvas &canvas, float y0, float deep, Colour colour, float strength, std::uint32_t seed) {
    const Coarse<float> wisps(4, [&](float x, float y) {
        return Fractal(x / 520 + 0.3f * Noise(x / 200, y / 80, seed + 3), y / 110, seed, 5, 0.55f);
    });
    canvas.Each(
        [&](float x, float y, Colour &pixel) {
            const float w = wisps.At(x, y), lift = (y - y0 - 40 * w) / deep;
            pixel = Mix(pixel, colour, Unit(strength * Bell(lift) * (0.8f + 0.9f * w)));
        },
        y0 - 3 * deep, y0 + 3 * deep);
}

/// A falling leaf with its stalk.
void Leaf(Canvas &canvas, Random &random, float x, float y, float size, Colour colour, float soft) {
    const float angle = random.Between(0, 2 * pi);
    for (const float turn : {-1.15f, -0.6f, 0.6f, 1.15f, 0.0f})
        canvas.Petal(x, y, angle + turn, size * (1 - 0.28f * std::abs(turn)), size * 0.36f, colour * 0.75f,
                     colour * (1.15f - 0.2f * std::abs(turn)), 0.95f, soft);
    canvas.Curve(x, y, x - std::cos(angle) * size * 0.3f, y - std::sin(angle) * size * 0.3f,
                 x - std::cos(angle + 0.5f) * size * 0.7f, y - std::sin(angle + 0.5f) * size * 0.7f,
                 size * 0.05f, size * 0.03f, colour * 0.5f, 0.9f, soft);
}

void Bird(Canvas &canvas, float x, float y, float size, float flap, Colour colour) {
    for (const float side : {-1.0f, 1.0f})
        canvas.Curve(x, y, x + side * size * 0.5f, y - size * (0.35f + flap), x + side * size,
                     y - size * flap * 0.3f, size * 0.16f + 0.7f, 0.4f, colour, 0.9f, 0.3f);
    canvas.Stroke(x, y - size * 0.05f, size * 0.16f, x + size * 0.12f, y + size * 0.1f, size * 0.1f, colour,
                  0.9f, 0.3f);
}

/// Draws a bough of a bare tree and its forks; `length` shrinks from fork to fork.
void Bough(Canvas &canvas, Random &random, float x, float y, float angle, float length, float width,
           Colour colour) {
    const float bend = angle + random.Between(-0.3f, 0.3f);
    const float end_x = x + length * std::cos(bend), end_y = y + length * std::sin(bend);
    canvas.Curve(x, y, x + 0.5f * length * std::cos(angle), y + 0.5f * length * std::sin(angle), end_x, end_y,
                 width, width * 0.62f, colour);
    if (length < 9)
        return;
    const int forks = random.Next() < 0.35f ? 3 : 2;
    for (int i = 0; i < forks; ++i) {
        const float side = (static_cast<float>(i) + 0.5f) / static_cast<float>(forks) * 2 - 1;
        const float lift = 0.12f * std::cos(bend); // twigs turn up towards the light
        Bough(canvas, random, end_x, end_y, bend + side * random.Between(0.35f, 0.85f) - lift,
              length * random.Between(0.66f, 0.84f), width * 0.62f, colour);
    }
}

void Reeds(Canvas &canvas, Random &random, float left, float right, float foot, float low, float high,
           int count, Colour root, Colour tip) {
    for (int i = 0; i < count; ++i) {
        const float x = random.Between(left, right),
                    edge = Ramp(0, 0.35f, std::min(x - left, right - x) / (right - left));
        const float height = Mix(low, high, edge * random.Between(0.3f, 1)),
                    lean = height * (0.08f + 0.09f * random.Bell_Shaped());
        const float base = foot + random.Between(-8, 12), shade = random.Between(0.7f, 1.2f),
                    thick = high * 0.0045f + 0.6f;
        canvas.Curve(x, base, x + lean * 0.1f, base - height * 0.6f, x + lean, base - height, thick,
                     thick * 0.6f, Mix(root, tip, 0.4f) * shade);
        if (random.Next() < 0.6f) {
            const float leaf = height * random.Between(0.3f, 0.55f),
                        from = base - height * random.Between(0.2f, 0.55f),
                        side = random.Next() < 0.4f ? -1.0f : 1.0f;
            canvas.Curve(x + lean * 0.2f, from, x + side * leaf * 0.3f, from - leaf * 0.9f,
                         x + side * leaf * 0.75f, from - leaf * random.Between(0.2f, 0.7f), thick * 1.5f,
                         0.4f, Mix(root, tip, random.Next()) * shade);
        }
        if (random.Next() < 0.35f)
            for (int j = 0; j < 9; ++j) { // the feathery head
                const float t = static_cast<float>(j) / 9, plume = height * 0.15f;
                const float px = x + lean + plume * 0.35f * t * t, py = base - height - plume * (t - 0.35f);
                canvas.Curve(px, py, px + 3, py - plume * 0.1f, px + plume * random.Between(0.1f, 0.4f),
                             py + plume * 0.1f, thick * 1.3f, 0.4f, Mix(tip, Rgb(0x8a6a4c), 0.5f) * shade,
                             0.7f, 0.6f);
            }
    }
}

/// Shafts of light that fan out from the sun, downwards.
void Sunbeams(Canvas &canvas, float sun_x, float sun_y) {
    canvas.Each([&](float x, float y, Colour &pixel) {
        const float angle = std::atan2(y - sun_y, x - sun_x), d = std::hypot(x - sun_x, y - sun_y);
        const float shaft = Ramp(-0.1f, 0.5f, Fractal(angle * 5, 2, 950, 4)) * Ramp(60, 320, d) *
                            std::exp(-d / 620) * Ramp(sun_y - 60, sun_y + 160, y);
        pixel = pixel + Colour{0.30f, 0.20f, 0.08f} * shaft;
    });
}

} // namespace

void September(Canvas &canvas) {
    Random random(909);
    constexpr float sun_x = 1390, sun_y = 330;
    Sky(canvas, {{0, 0x8fa9b8}, {0.25f, 0xc9c3a6}, {0.5f, 0xf2cf8c}, {0.75f, 0xf8d79a}, {1, 0xf2c88a}}, 900);
    const Coarse<Cloud> clouds(4, [](float x, float y) {
        return Cloud_At(x / 900, y / 190, 915, -0.1f - 0.3f * Ramp(260, 420, y), 0.6f, 0.3f, 0.7f);
    });
    canvas.Each(
        [&](float x, float y, Colour &pixel) {
            const Cloud c = clouds.At(x, y);
            pixel = Mix(pixel, Mix(Rgb(0xd8c3a4), Rgb(0xffecc4), 0.5f + 0.5f * c.light), c.cover * 0.55f);
        },
        0, 520);
    canvas.Glow(sun_x, sun_y, 170, Colour{0.75f, 0.55f, 0.25f});
    canvas.Glow(sun_x, sun_y, 560, Colour{0.32f, 0.20f, 0.07f});
    canvas.Disc(sun_x, sun_y, 38, Colour{2.4f, 2.0f, 1.3f}, 1, 3);
    const Gradient crest{
        {0, 0xd9b98a}, {0.3f, 0xb99a78}, {0.55f, 0x8a7d70}, {0.78f, 0x4f5a58}, {1, 0x1c2c2c}};
    const Gradient foot{{0, 0xf6d79b}, {0.5f, 0xe9bf82}, {0.8f, 0xc09a68}, {1, 0x4a4a3a}};
    constexpr int ranges = 8;
    for (int i = 0; i < ranges; ++i) {
        const float k = static_cast<float>(i) / (ranges - 1), base = 470 + 470 * std::pow(k, 1.15f);
        const Ridge ridge{
            base, 110 - 50 * k, 560 + 260 * k, 920u + static_cast<unsigned>(i) * 7, 0.62f - 0.5f * k, 6};
        canvas.Below(ridge, [&](float x, float y, float depth) {
            // Haze takes on the colour of the sun in its direction.
            const float sunward = std::exp(-std::abs(x - sun_x) / 620);
            const Colour hue =
                Mix(crest.At(k), crest.At(k) * Colour{1.5f, 1.2f, 0.8f}, sunward * (1 - k * 0.7f));
            const float relief = Fractal(x / 70 + depth / 90, (y + depth * 0.4f) / 80,
                                         930 + static_cast<unsigned>(i), 5, 0.55f);
            const Colour veil = Mix(foot.At(k), Rgb(0xffe3a6), sunward * 0.6f);
            return Mix(hue * (1 + 0.22f * relief), veil, 1 - std::exp(-depth / (95 + 60 * k)));
        });
        if (i == ranges - 1)
            Sunbeams(canvas, sun_x, sun_y);
        if (i >= 4)
            Conifers(canvas, random, ridge, -20, 1940, 7 + 9 * (k - 0.5f) * 2, 8 + 60 * (k - 0.5f),
                     26 + 190 * (k - 0.5f) * (k - 0.3f) * 2, 10 + 30 * k,
                     {crest.At(k) * 0.9f, Rgb(0xe8b878), 0.28f * Ramp(1.1f, 0.6f, k)});
        if (i < ranges - 1)
            Mist(canvas, base + 75 + 20 * k, 34 + 12 * k, Mix(Rgb(0xf8dca6), Rgb(0xeac890), k), 0.5f,
                 940 + static_cast<unsigned>(i));
    }
    for (const auto &[x, height] :
         std::initializer_list<std::pair<float, float>>{{40, 260}, {1640, 230}, {1730, 380}, {1860, 640}})
        Conifer(canvas, random, x, 1020 + height * 0.2f, height, {Rgb(0x14211f), Rgb(0x8f7a50), 0.3f});
    for (int i = 0; i < 9; ++i)
        Bird(canvas, 1010 + 27 * static_cast<float>(i) + random.Between(-12, 12),
             270 + random.Between(-40, 40), random.Between(7, 12), random.Between(-0.2f, 0.5f),
             Rgb(0x6a5a4c));
    canvas.Mirror(); // moves the empty sky to the right, under the calendar
    canvas.Bloom(0.8f, 50, 0.3f);
    Shade_Icons(canvas, 0.4f);
    Vignette(canvas, 0.2f);
}

void October(Canvas &canvas) {
    Random random(1010);
    constexpr float sun_x = 800, sun_y = 340;
    Sky(canvas, {{0, 0x9fb4bf}, {0.3f, 0xcbcdc4}, {0.6f, 0xf0dcb8}, {1, 0xf4cf9c}}, 700);
    canvas.Glow(sun_x, sun_y, 420, Colour{0.42f, 0.30f, 0.14f});
    struct Slope {
        Ridge ridge;
        float spacing, size, haze;
    };
    const Slope slopes[] = {{{430, 90, 780, 1011}, 7, 18, 0.76f},
                            {{500, 90, 900, 1012, 0, 5, -120}, 9, 26, 0.56f},
                            {{600, 100, 1000, 1013, 0, 5, 190}, 13, 40, 0.36f},
                            {{710, 100, 1050, 1014, 0, 5, -230}, 20, 62, 0.18f},
                            {{840, 90, 1200, 1015, 0, 5, 170}, 32, 100, 0.06f},
                            {{1000, 70, 1300, 1016, 0, 5, -140}, 60, 185, 0}};
    const unsigned lit[] = {0xe8a93a, 0xd9772a, 0xc24a22, 0xe9c24c, 0xb9862e, 0x8f8a3a},
                   shade[] = {0x8a4f1c, 0x6f2f18, 0x541a1a, 0x8f6a20, 0x5a3a1c, 0x3a4426};
    const Colour air = Rgb(0xe9d3b4);
    int layer = 0;
    for (const Slope &slope : slopes) {
        const auto n = static_cast<unsigned>(layer++);
        Hill(canvas, slope.ridge, Mix(Rgb(0x5a3c22), air, slope.haze), Mix(Rgb(0x4a3a26), air, slope.haze),
             60, 0.1f);
        // Rows of crowns down the slope, the lower ones in front.
        for (float down = 0; down < 240 + slope.size; down += slope.size * 0.36f)
            for (float x = -40; x < 1960; x += slope.spacing * random.Between(0.7f, 1.5f)) {
                const float grove = Fractal(x / (slope.size * 9), down / (slope.size * 5), 1020 + n, 3),
                            pick = grove * 4.5f + random.Between(0, 3.2f);
                const bool fir =
                    random.Next() <
                    0.10f +
                        0.25f * Ramp(0.1f, 0.4f, Noise(x / (slope.size * 6), down / slope.size, 1030 + n));
                const auto kind = static_cast<std::size_t>(std::clamp(pick + 0.6f, 0.0f, 5.0f));
                const float foot = slope.ridge(x) + down + slope.size * 0.55f,
                            haze = Unit(slope.haze + 0.10f * down / 150), sunny = random.Between(0.75f, 1.1f);
                if (fir)
                    Conifer(canvas, random, x, foot, slope.size * random.Between(1.1f, 1.5f),
                            {Mix(Rgb(0x26382c), air, haze), Mix(Rgb(0x8a9a58), air, haze), 0.35f});
                else
                    Leafy_Tree(canvas, random, x, foot, slope.size * random.Between(0.8f, 1.25f),
                               Mix(Rgb(shade[kind]), air, haze), Mix(Rgb(lit[kind]) * sunny, air, haze),
                               -0.9f);
            }
        if (layer < 6)
            Mist(canvas, slope.ridge.base + 100 + 14 * static_cast<float>(layer),
                 32 + 5 * static_cast<float>(layer),
                 Mix(Rgb(0xf6e2bf), Rgb(0xe8d4b4), static_cast<float>(layer) / 6),
                 0.75f - 0.08f * static_cast<float>(layer), 1040 + n);
    }
    for (int i = 0; i < 14; ++i) {
        const float size = random.Between(8, 14), z = random.Next();
        Leaf(canvas, random, random.Between(0, 1200), random.Between(620, 1060), size * (1 + z),
             Rgb(lit[static_cast<std::size_t>(z * 3.9f)]), z > 0.75f ? 3.5f : 0.5f);
    }
    canvas.Bloom(0.75f, 50, 0.3f);
    canvas.Glow(sun_x, sun_y, 600, Colour{0.07f, 0.045f, 0.015f});
    Shade_Icons(canvas, 0.45f);
    Vignette(canvas, 0.25f);
}

void November(Canvas &canvas) {
    Random random(1111);
    constexpr float horizon = 610;
    const Colour fog = Rgb(0xc3c6c4);
    Sky(canvas, {{0, 0x98a1a8}, {0.45f, 0xb8bdbe}, {0.8f, 0xd3d0c6}, {1, 0xd6d1c4}}, horizon);
    canvas.Glow(1120, 225, 260, Colour{0.22f, 0.19f, 0.13f});
    canvas.Disc(1120, 225, 44, Rgb(0xf8f0dc), 0.75f, 16);
    const Ridge shores[] = {{566, 40, 700, 1121}, {590, 22, 500, 1125}};
    for (int i = 0; i < 2; ++i) {
        const auto k = static_cast<float>(i);
        const auto bay = [&](float x) { return 40 * Bell((x - 960) / (520 - 120 * k)); };
        const Ridge &shore = shores[i];
        const Colour rust = Mix(Rgb(0x7d5a44), fog, 0.76f - 0.2f * k),
                     dark = Mix(Rgb(0x4d4a46), fog, 0.76f - 0.2f * k);
        canvas.Below([&](float x) { return shore(x) + bay(x); },
                     [&](float, float, float depth) { return Mix(dark, fog, Unit(depth / 60) * 0.6f); },
                     horizon);
        for (float x = -20; x < 1940; x += random.Between(3, 9) + 3 * k) {
            const float foot = shore(x) + bay(x) + 5, size = (26 + 26 * k) * random.Between(0.6f, 1.2f) *
                                                             (0.5f + 0.5f * Ramp(60, 700, std::abs(x - 960)));
            if (foot > horizon - 1 || Noise(x / 60, k, 1130) < -0.25f)
                continue;
            if (random.Next() < 0.45f)
                Conifer(canvas, random, x, foot, size * 1.3f, {dark, {}, 0, 0.8f});
            else
                Leafy_Tree(canvas, random, x, foot, size, dark,
                           Mix(rust, Rgb(0xc08a5c), 0.25f * random.Next()), 0.5f, 0.8f);
        }
        Mist(canvas, horizon - 8, 26, Rgb(0xd0d0ca), 0.75f, 1140 + static_cast<unsigned>(i));
    }
    // A spit of land with a bare tree.
    canvas.Below(
        [&](float x) { return horizon + 6 - 34 * Ramp(560, 180, x) - 6 * Fractal(x / 60, 3, 1150, 4); },
        [&](float x, float y, float depth) {
            return Mix(Rgb(0x6e5c4c), Rgb(0x4f4a44), Unit(depth / 24)) *
                   (1 + 0.3f * Fractal(x / 14, y / 5, 1151, 4));
        },
        horizon);
    Bough(canvas, random, 300, 588, -pi / 2, 66, 15, Rgb(0x43403f));
    Bough(canvas, random, 196, 588, -pi / 2 - 0.1f, 42, 9, Rgb(0x55504c));
    Reeds(canvas, random, 380, 560, horizon - 3, 12, 34, 130, Rgb(0x6a5238), Rgb(0xb08a58));
    Water(canvas, {horizon, picture_height, 0.22f, Rgb(0x7d8a90), 0.42f, 1160});
    Mist(canvas, horizon + 14, 34, Rgb(0xcfd0cb), 0.65f, 1170);
    Mist(canvas, 760, 60, Rgb(0xc6cac9), 0.3f, 1171);
    for (int i = 0; i < 11; ++i) {
        const auto k = static_cast<float>(i < 6 ? i : 5 - i);
        Bird(canvas, 560 + 30 * std::abs(k) + random.Between(-4, 4),
             190 + (k < 0 ? -13.0f : 17.0f) * std::abs(k) + random.Between(-4, 4), 12,
             random.Between(-0.1f, 0.5f), Rgb(0x6d7276));
    }
    Reeds(canvas, random, -120, 520, 1090, 60, 250, 620, Rgb(0x3a3028), Rgb(0xb39468));
    Reeds(canvas, random, 1370, 2080, 1095, 80, 400, 900, Rgb(0x30261f), Rgb(0xb58a5c));
    canvas.Bloom(0.72f, 50, 0.2f);
    Vignette(canvas, 0.3f);
}
