// March, April and May.
#include "scenery.h"

#include <array>

namespace {

struct Birch_Look {
    float x, foot, width, lean;
    float fog; ///< share of the fog's colour, 0 to 1
    float soft;
};

/// A twig that forks twice, with red-brown buds at its ends.
void Twig(Canvas &canvas, Random &random, float x, float y, float angle, float length, float width,
          Colour colour, float soft) {
    const float bend = angle + random.Between(-0.35f, 0.35f);
    const float end_x = x + length * std::cos(bend), end_y = y + length * std::sin(bend);
    canvas.Curve(x, y, x + 0.5f * length * std::cos(angle), y + 0.5f * length * std::sin(angle), end_x, end_y,
                 width, width * 0.4f, colour, 0.9f, soft);
    if (length < 16)
        return canvas.Disc(end_x, end_y, 1.3f, Mix(colour, Rgb(0xb08a4e), 0.5f), 0.7f, soft + 0.6f);
    const int forks = length > 90 ? 4 : 3;
    for (int i = 0; i < forks; ++i) {
        const float t = random.Between(0.35f, 1);
        Twig(canvas, random, Mix(x, end_x, t), Mix(y, end_y, t), bend + random.Between(-0.75f, 0.75f) + 0.12f,
             length * random.Between(0.42f, 0.62f), width * 0.5f, colour, soft);
    }
}

void Birch(Canvas &canvas, Random &random, const Birch_Look &look, Colour fog) {
    const float seed = look.x * 0.37f, half = look.width / 2;
    const auto middle = [&](float y) {
        return look.x + look.lean * (look.foot - y) +
               look.width * 0.5f * Noise(y / 330, seed, 31) * Unit((look.foot - y) / 200);
    };
    const auto thick = [&](float y) {
        return half * (0.62f + 0.38f * y / look.foot + 0.5f * std::exp((y - look.foot) / (half * 1.4f)));
    };
    const Colour twig = Mix(Rgb(0x4a3a3c), fog, look.fog);
    for (int i = 0; i < 13; ++i) {
        const float y = random.Between(-60, look.foot * 0.56f), side = random.Next() < 0.5f ? -1.0f : 1.0f;
        Twig(canvas, random, middle(y), y, -pi / 2 + side * random.Between(0.5f, 1.05f),
             std::min(look.width * random.Between(2.2f, 4.2f), 190.0f), look.width * 0.06f + 1.2f, twig,
             look.soft);
    }
    canvas.Shape(
        look.x - 500, 0, look.x + 500, look.foot + half,
        [&](float x, float y) {
            const float round_foot = look.foot + half * 0.1f * Noise(x / half, seed, 4);
            return canvas.Edge(std::min(thick(y) - std::abs(x - middle(y)), round_foot - y), look.soft);
        },
        [&](float x, float y) {
            const float u = (x - middle(y)) / thick(y), bow = y + u * u * half * 0.25f;
            Colour bark = Mix(Rgb(0xfaf4e6), Rgb(0x8f929a),
                              Ramp(-0.35f, 1.1f, u) * 0.85f + Ramp(-0.7f, -1.1f, u) * 0.5f);
            bark = bark * (0.93f + 0.12f * Fractal(u * 1.4f, bow / half * 2.2f, 33, 4));
            // Short dark lines across, and the black scars and foot of old bark.
            const float lines = Ramp(0.33f, 0.62f, Fractal(u * 0.9f + seed, bow / half * 5.5f, 35, 3, 0.6f));
            const float scars = Ramp(0.34f, 0.5f, Fractal(u * 0.8f + seed, bow / half * 0.75f, 36, 4, 0.5f));
            const float foot = Ramp(0.1f, 0.7f,
                                    std::exp((y - look.foot) / (half * 3.5f)) +
                                        0.4f * Fractal(u * 3 + seed, y / half * 1.5f, 37, 5, 0.7f));
            bark = Mix(bark, Rgb(0x2f2a2e), std::max({lines * 0.7f, scars * 0.9f, foot * 0.85f}));
            return Mix(bark, fog, look.fog);
        });
}

/// A poppy seen from the side; `size` is the length of its petals.
void Poppy(Canvas &canvas, Random &random, float x, float y, float size, float haze, float soft) {
    const Colour air = Rgb(0xdfe0a8);
    const auto hazy = [&](unsigned hex) { return Mix(Rgb(hex), air, haze); };
    const float tilt = random.Between(-0.4f, 0.4f) - pi / 2;
    for (const float turn : {-0.75f, 0.75f, 0.0f})
        canvas.Petal(x, y, tilt + turn * 0.9f, size, size * 1.15f, hazy(0x7c0d0d), hazy(0xe2331c), 1, soft);
    canvas.Disc(x, y - size * 0.12f, size * 0.2f, hazy(0x2a1018), 0.8f, soft + size * 0.1f);
    for (const float turn : {-0.95f, 0.9f, -0.25f}) {
        const float length = size * random.Between(0.7f, 0.85f);
        canvas.Petal(x, y + size * 0.1f, tilt + turn, length, size * 1.05f, hazy(0x9e1410), hazy(0xff5a33),
                     0.93f, soft);
    }
    for (int i = 0; i < 7 && soft < 3; ++i) {
        const float angle = tilt + random.Between(-1.1f, 1.1f), far = size * random.Between(0.35f, 0.78f);
        canvas.Curve(x, y + size * 0.06f, x + std::cos(angle) * far * 0.6f, y + std::sin(angle) * far * 0.6f,
                     x + std::cos(angle) * far, y + std::sin(angle) * far, size * 0.02f, size * 0.05f,
                     hazy(0xb41c12), 0.35f, 1.2f);
    }
}

/// A flower of narrow petals around an eye, seen from slightly above.
void Daisy(Canvas &canvas, Random &random, float x, float y, float size, unsigned root, unsigned tip,
           unsigned eye, float soft) {
    const int petals = 15;
    const float flat = random.Between(0.4f, 0.75f), turned = random.Next();
    for (int i = 0; i < petals; ++i) {
        const float angle = (static_cast<float>(i) + turned) / petals * 2 * pi;
        const float dx = std::cos(angle), dy = std::sin(angle) * flat, length = size * std::hypot(dx, dy);
        canvas.Petal(x, y, std::atan2(dy, dx), length, size * 0.34f, Rgb(root), Rgb(tip), 0.95f, soft);
    }
    canvas.Disc(x, y - size * 0.06f, size * 0.24f, Rgb(eye), 1, soft + size * 0.06f);
    canvas.Disc(x - size * 0.05f, y - size * 0.12f, size * 0.1f, Rgb(eye) * 1.5f, 0.6f, soft + size * 0.1f);
}

} // namespace

void March(Canvas &canvas) {
    Random random(303);
    const Colour fog = Rgb(0xd5dcd6);
    Sky(canvas, {{0, 0xbccbd2}, {0.35f, 0xd9ddd4}, {0.62f, 0xf0e4c9}, {0.72f, 0xd9d4bd}, {1, 0x8f927c}});
    canvas.Glow(700, 470, 330, Colour{0.52f, 0.42f, 0.22f});
    // Trunks in the distance, paler the farther away.
    for (int layer = 0; layer < 4; ++layer) {
        const auto k = static_cast<float>(layer);
        for (int i = 0; i < 46 - 9 * layer; ++i) {
            const float x = random.Between(-60, 1980), foot = 690 + 30 * k + random.Between(0, 26);
            Birch(canvas, random,
                  {x, foot, random.Between(6, 11) + 5 * k, random.Between(-0.03f, 0.03f), 0.9f - 0.14f * k,
                   1.6f - 0.3f * k},
                  Mix(fog, Rgb(0xf3e6c8), Bell((x - 700) / 420) * 0.8f));
        }
        canvas.Each([&](float x, float y, Colour &pixel) {
            const float mist =
                Bell((y - 720 - 30 * k) / 110) *
                (0.5f + 0.4f * Fractal(x / 420, y / 120, 330 + static_cast<unsigned>(layer), 4));
            pixel = Mix(pixel, Mix(fog, Rgb(0xf3e2bf), Bell((x - 700) / 460)), Unit(mist) * 0.75f);
        });
    }
    // The floor: last year's leaves, moss, and the last snow.
    const auto edge = [](float x) { return 786 + 10 * Fractal(x / 400, 1, 340, 4); };
    const auto snow_at = [](float x, float depth) {
        return Fractal((x - 960) / (depth + 40) * 0.75f + 2, std::log(depth + 40) * 3.6f, 343, 5, 0.42f) -
               0.02f;
    };
    canvas.Below(edge, [&](float x, float, float depth) {
        const float near = depth + 40, u = (x - 960) / near, w = std::log(near) * 4;
        const float litter = Fractal(u * 9, w * 11, 341, 6, 0.8f);
        const float moss = Ramp(-0.1f, 0.4f, Fractal(u * 1.2f, w * 1.6f, 342, 4));
        Colour ground = Mix(Rgb(0x5e4d3a), Rgb(0x9c8660), 0.5f + litter);
        ground = Mix(ground, Mix(Rgb(0x53622f), Rgb(0x8d9a50), 0.5f + litter * 0.9f), moss * 0.75f);
        const float field = snow_at(x, depth) + 0.012f * litter;
        const Colour white = Mix(Rgb(0x9fb2c8), Rgb(0xf5f2ea), Ramp(0, 0.22f, field + 0.05f * litter));
        const Colour here =
            Mix(ground * (0.85f - 0.3f * Ramp(-0.06f, 0, field)), white, Ramp(0, 0.035f, field));
        return Mix(here, Mix(fog, Rgb(0xf3e2bf), Bell((x - 700) / 460)), std::exp(-depth / 55));
    });
    // Clumps of liverwort, the first flowers of the year, where the snow has gone.
    for (int i = 0; i < 900; ++i) {
        const float x = random.Between(0, 1920), y = 850 + 240 * std::sqrt(random.Next()), near = y - 740;
        if (Fractal(x / 300, y / 90, 350, 3) < 0.08f || snow_at(x, y - edge(x)) > -0.05f)
            continue;
        const float size = near * random.Between(0.014f, 0.026f), lift = size * 1.5f;
        for (int leaf = 0; leaf < 4; ++leaf)
            canvas.Petal(x, y + lift, random.Between(-pi, 0), size * 1.8f, size, Rgb(0x2f3d20), Rgb(0x66793a),
                         0.8f, 0.8f);
        canvas.Stroke(x, y + lift, 1, x, y, 1, Rgb(0x6a5040));
        const Colour tip = Mix(Rgb(0x7f7cdc), Rgb(0xa79cec), random.Next());
        for (int petal = 0; petal < 7; ++petal) {
            const float angle = static_cast<float>(petal) / 7 * 2 * pi + x,
                        flat = std::hypot(std::cos(angle), 0.6f * std::sin(angle));
            canvas.Petal(x, y, std::atan2(0.6f * std::sin(angle), std::cos(angle)), size * 1.15f * flat,
                         size * 0.7f, Rgb(0x3f3fa4), tip, 0.95f, 0.5f);
        }
        canvas.Disc(x, y, size * 0.2f, Rgb(0xf6f3df), 0.9f, 0.6f);
    }
    for (const Birch_Look &birch : std::initializer_list<Birch_Look>{{620, 838, 30, 0.02f, 0.34f, 0.7f},
                                                                     {1010, 842, 33, -0.03f, 0.3f, 0.7f},
                                                                     {1790, 850, 34, 0.02f, 0.3f, 0.7f},
                                                                     {1420, 835, 27, 0.01f, 0.4f, 0.8f},
                                                                     {500, 890, 54, -0.02f, 0.14f, 0.4f},
                                                                     {800, 905, 50, 0.03f, 0.13f, 0.4f},
                                                                     {205, 900, 58, 0.03f, 0.12f, 0.4f},
                                                                     {335, 1010, 92, 0.015f, 0, 0}}) {
        Birch(canvas, random, birch, fog);
        // Moss and old leaves hide where the bark meets the ground.
        for (int i = 0; i < 90; ++i) {
            const float x = birch.x + birch.width * 0.8f * random.Bell_Shaped(),
                        low = birch.foot + birch.width * random.Between(-0.06f, 0.16f);
            canvas.Petal(x, low, random.Between(-pi, 0), birch.width * random.Between(0.08f, 0.2f),
                         birch.width * 0.06f, Mix(Rgb(0x4a3d28), fog, birch.fog),
                         Mix(Mix(Rgb(0x6f7a3a), Rgb(0x8f744a), random.Next()), fog, birch.fog), 0.85f, 0.8f);
        }
    }
    canvas.Bloom(0.72f, 60, 0.25f);
    Shade_Icons(canvas, 0.45f);
    Vignette(canvas, 0.2f);
}

void April(Canvas &canvas) {
    Random random(404);
    Sky(canvas, {{0, 0x5f86ab}, {0.5f, 0x93b4c8}, {0.85f, 0xd0dcd8}, {1, 0xe9e6d4}}, 690);
    // A passing bank of rain clouds: white towers at its edge, slate within, veils of rain below.
    const auto puffs = [](float x, float y) { return 1 - Crests(x / 430 + 3, y / 300, 413, 7, 0.52f); };
    const Coarse<Cloud> bank(2, [&](float x, float y) {
        const float puff = puffs(x, y), inside = (x - 330 - 0.55f * y) / 620 + 1.25f * (puff - 0.62f) -
                                                 0.5f * Ramp(470, 660, y) * Ramp(1100, 500, x);
        return Cloud{inside, puffs(x + 11, y + 15) - puffs(x - 11, y - 15)};
    });
    canvas.Each(
        [&](float x, float y, Colour &pixel) {
            const Cloud c = bank.At(x, y);
            const float storm = Ramp(0.05f, 1.1f, c.cover + 0.25f * Ramp(0, 500, y));
            const Colour lit = Mix(Rgb(0xfaf4e8), Rgb(0x7c8da0), storm),
                         dark = Mix(Rgb(0xa3afbb), Rgb(0x3f4e63), storm);
            pixel = Mix(pixel, Mix(dark, lit, Unit(0.5f + 2.1f * c.light)),
                        Ramp(0, 0.16f, c.cover) * Ramp(690, 590, y));
            const float veil = Ramp(-0.3f, 0.6f, Fractal((x + y * 0.3f) / 150, y / 2600, 414, 4)) *
                               Ramp(250, 620, y) * Ramp(350, 900, x);
            pixel = Mix(pixel, Rgb(0x64778c), veil * 0.75f);
        },
        0, 720);
    const Ridge far{606, 60, 760, 421, 0, 5, -40}, next{650, 50, 640, 422, 0, 5, 50};
    Hill(canvas, far, Rgb(0x5d7784), Rgb(0x8ba39a), 70, 0.1f);
    Hill(canvas, next, Rgb(0x567650), Rgb(0x86a074), 60, 0.2f);
    // The rainbow, brightest before the dark cloud. The sky inside it is a little lighter.
    const Gradient spectrum{{0, 0x5a2d9c},     {0.2f, 0x3557d8},  {0.4f, 0x2fb56a},
                            {0.58f, 0xd9dc3a}, {0.75f, 0xf09a2c}, {1, 0xd8382c}};
    canvas.Each(
        [&](float x, float y, Colour &pixel) {
            const float d = std::hypot(x - 905, y - 1010), t = (d - 690) / 52, second = (930 - d) / 70;
            const float shine = (0.5f + 0.5f * Ramp(300, 1100, x)) * Ramp(735, 560, y);
            pixel = pixel * (1 + 0.10f * Ramp(700, 670, d) * shine);
            pixel = pixel + spectrum.At(t) * (0.46f * shine * Ramp(-0.15f, 0.3f, t) * Ramp(1.15f, 0.7f, t));
            pixel = pixel + spectrum.At(second) *
                                (0.07f * shine * Ramp(-0.15f, 0.3f, second) * Ramp(1.15f, 0.7f, second));
        },
        0, 740);
    const Ridge fields[] = {{688, 50, 720, 431, 0, 5, -50},
                            {736, 60, 800, 432, 0, 5, 70},
                            {796, 60, 900, 433, 0, 5, -60},
                            {930, 60, 1200, 435, 0, 5, 110}};
    const Colour crops[] = {Rgb(0x86a750), Rgb(0x5f8f45), Rgb(0xc3b73f), Rgb(0x9bb85a),
                            Rgb(0x4d8040), Rgb(0x8a7b52), Rgb(0x74a04a)};
    for (int i = 0; i < 4; ++i) {
        const auto k = static_cast<float>(i);
        const auto &ridge = fields[i];
        canvas.Below(ridge, [&](float x, float y, float depth) {
            const float sun = Ramp(
                -0.2f, 0.2f, Fractal((x - 200) / 800, y / 190, 440, 3) - 0.2f * Ramp(700, 1700, x) + 0.1f);
            const float texture = Fractal(x / (16 + 5 * k), (y * 2) / (9 + 3 * k), 441, 5, 0.65f);
            // The nearest hill is a meadow; hedges divide the others into fields.
            Colour grass = Mix(Rgb(0x94bb50), Rgb(0x4a8038), 1 - std::exp(-depth / 110));
            if (i < 3) {
                const float u = (x + depth * (1.4f - k)) / (210 + 80 * k) +
                                0.22f * Noise(x / 300, depth / 60, 443),
                            v = depth / (30 + 13 * k) + 0.35f * Noise(x / 260, k, 444) + 0.3f;
                const auto cell = Scramble(static_cast<std::uint32_t>(
                    static_cast<int>(u + 50) * 31 + static_cast<int>(v + 50) * 17 + i * 101));
                const float row = 0.5f + 0.5f * std::sin(u * (60 + static_cast<float>(cell % 5) * 12));
                const float away =
                    std::min(std::min(u - std::floor(u), std::ceil(u) - u) * (210 + 80 * k) * 0.5f,
                             std::min(v - std::floor(v), std::ceil(v) - v) * (30 + 13 * k));
                const float hedge = Ramp(1.6f + k, 0.4f, away + 2.2f * Noise(x / (5 + 2 * k), y / 4, 445));
                grass = Mix(crops[cell % 7], Rgb(0x6d9a4a), 0.25f) *
                        (0.95f + (cell % 3 == 0 ? 0.10f * row : 0.05f));
                grass = Mix(grass, Rgb(0x2c4a2a), hedge * 0.85f);
                grass = Mix(Rgb(0x8fa68a), grass, 0.62f + 0.16f * k);
            }
            return grass * ((0.46f + 0.62f * sun) * (1 + 0.17f * texture));
        });
        for (int tree = 0; tree < 150; ++tree) {
            const float x = random.Between(-20, 1940), down = 7 * random.Next(),
                        grove = Noise(x / 150 + down / 60, k, 450);
            if (i == 3 || grove < 0.1f)
                continue;
            const float height = (8 + 8 * k) * (0.7f + grove) * random.Between(0.7f, 1.2f);
            Leafy_Tree(canvas, random, x, ridge(x) + 3 + down, height, Rgb(0x2c4a2e),
                       Mix(Rgb(0x7f9c4e), Rgb(0xb9c97a), random.Next()), -0.8f);
        }
    }
    // Fruit trees in blossom on the near meadow.
    Leafy_Tree(canvas, random, 690, 918, 84, Rgb(0x7a7b74), Rgb(0xfbeee6), -0.8f);
    Leafy_Tree(canvas, random, 560, 925, 112, Rgb(0x7d6f72), Rgb(0xfae3e2), -0.8f);
    Leafy_Tree(canvas, random, 395, 940, 175, Rgb(0x75706e), Rgb(0xfdf3ec), -0.8f);
    Leafy_Tree(canvas, random, 150, 968, 290, Rgb(0x2c4a26), Rgb(0xb4c860), -0.8f);
    for (int i = 0; i < 5200; ++i) {
        const float z = std::sqrt(static_cast<float>(i) / 5200), x = random.Between(0, 1920),
                    y = 955 + 160 * z;
        Blade(canvas, random, x, y, 12 + 34 * z, Rgb(0x3d6a2f),
              Mix(Rgb(0x62943e), Rgb(0xa9c763), random.Next()));
        if (i % 14 == 0 && Noise(x / 180, z * 3, 460) > 0)
            canvas.Disc(x, y - 12 - 30 * z, 1.2f + 2.2f * z, i % 4 ? Rgb(0xf3df4a) : Rgb(0xfaf7ee), 0.95f,
                        0.8f);
    }
    canvas.Bloom(0.7f, 40, 0.2f);
    Vignette(canvas, 0.22f);
}

void May(Canvas &canvas) {
    Random random(505);
    Sky(canvas, {{0, 0x7fb4dc}, {0.4f, 0xb5d6e6}, {0.75f, 0xf1ecd2}, {1, 0xf8e6b8}}, 640);
    const Coarse<Cloud> clouds(4, [](float x, float y) {
        return Cloud_At(x / 760, y / 330, 511, -0.06f - 0.2f * Ramp(300, 600, y), -0.5f, -0.5f, 0.7f);
    });
    canvas.Each(
        [&](float x, float y, Colour &pixel) {
            const Cloud c = clouds.At(x, y);
            pixel = Mix(pixel, Mix(Rgb(0xd3e0e6), Rgb(0xfffaf0), 0.5f + 0.5f * c.light), c.cover * 0.75f);
        },
        0, 640);
    canvas.Glow(330, 330, 330, Colour{0.5f, 0.4f, 0.2f});
    Hill(canvas, {560, 44, 620, 521}, Rgb(0xa9c7bd), Rgb(0xd6dcb2), 60, 0);
    // A blurred wood and the meadow far away.
    for (int i = 0; i < 90; ++i) {
        const float x = random.Between(-40, 1960),
                    size = random.Between(16, 46) * (0.5f + std::abs(x - 960) / 900);
        canvas.Disc(x, 618 - size * 0.5f, size, Mix(Rgb(0x6f9a66), Rgb(0xbcd08a), random.Next()), 0.55f,
                    size * 0.9f);
    }
    canvas.Each(
        [&](float x, float y, Colour &pixel) {
            const Colour meadow =
                Gradient{{0, 0xd3dc92}, {0.3f, 0x9fc05c}, {0.7f, 0x5d8f38}, {1, 0x2c5a22}}.At((y - 612) /
                                                                                              400);
            const float patch = Fractal(x / (60 + (y - 600)), std::log(y - 580) * 3, 530, 4);
            pixel = Mix(pixel, meadow * (1 + 0.22f * patch), Ramp(606, 626, y));
        },
        600);
    // From the far meadow to the near one, sharp at three quarters of the way.
    for (int i = 0; i < 5200; ++i) {
        const float z = static_cast<float>(i) / 5200, near = z * z, x = random.Between(-40, 1960);
        const float bowl = 70 * near * Ramp(0.15f, 1, std::abs(x - 960) / 960);
        const float foot = 640 + 560 * near - bowl, height = 12 + 250 * near * random.Between(0.6f, 1.1f);
        const float soft = z < 0.8f ? 7 * (0.8f - z) : 30 * std::max(z - 0.92f, 0.0f),
                    haze = 0.75f * (1 - z) * (1 - z);
        const Colour air = Rgb(0xe6e3a6);
        const float pick = random.Next();
        if (i % 2)
            Blade(canvas, random, x, foot, height, Mix(Rgb(0x2a5a20), air, haze),
                  Mix(Mix(Rgb(0x6f9f3a), Rgb(0xc9d873), random.Next()), air, haze), soft);
        const float patch = Fractal(x / (300 + 300 * near), z * 9, 540, 3);
        if (i % 9 || pick > 0.45f + 0.9f * patch)
            continue;
        const float head = foot - height * random.Between(0.85f, 1.2f),
                    size = 2.2f + 36 * near * random.Between(0.7f, 1.1f);
        const float root_x = x + height * random.Between(-0.25f, 0.25f);
        canvas.Curve(root_x, foot, root_x, Mix(foot, head, 0.6f), x, head, 1 + 2.5f * near,
                     0.8f + 1.6f * near, Mix(Rgb(0x4b7a2c), air, haze), 1, soft);
        const float kind = random.Next();
        if (kind < 0.55f)
            Poppy(canvas, random, x, head, size, haze * 0.7f, soft);
        else if (kind < 0.8f)
            Daisy(canvas, random, x, head, size * 0.72f, 0xd9dcc8, 0xffffff, 0xe8b220, soft);
        else
            Daisy(canvas, random, x, head, size * 0.6f, 0x2a3fae, 0x6f86ee, 0x3a2a80, soft);
    }
    // Flowers directly before the eye, a little too near to be sharp, and pollen in the light.
    for (const auto &[x, y, size] : std::initializer_list<std::array<float, 3>>{
             {205, 900, 52}, {60, 845, 66}, {1700, 905, 50}, {1850, 820, 70}}) {
        canvas.Curve(x - 14, 1120, x + 22, 1000, x, y, 6, 4, Rgb(0x4b7a2c), 1, 3);
        Poppy(canvas, random, x, y, size, 0, 3.5f);
    }
    for (int i = 0; i < 60; ++i) {
        const float near = random.Next() * random.Next();
        canvas.Disc(random.Between(0, 1920), 470 + 560 * random.Next(), 1 + 3 * near, Rgb(0xfff6cf),
                    0.55f - 0.4f * near, 1.5f + 6 * near);
    }
    canvas.Bloom(0.75f, 50, 0.3f);
    canvas.Glow(330, 330, 420, Colour{0.10f, 0.08f, 0.03f});
    canvas.Mirror(); // moves the sun to the right, away from the desktop's icons
    Shade_Icons(canvas, 0.45f);
    Vignette(canvas, 0.15f);
}
