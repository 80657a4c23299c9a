// March, April and May.
#include "tools/packs/scenery.h"

namespace {

struct Birch_Look {
    float x, foot, width, lean;
    float fog; ///< share of the fog's colour, 0 to 1
    float soft;
};

/// A twig that forks twice, its ends with red-brown buds.
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
            const float round_foot = look.foot + half * 0.22f * Noise(x / 5, seed, 4);
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
            const float foot = Ramp(
                0.1f, 0.7f, std::exp((y - look.foot) / (half * 3.5f)) + 0.5f * Noise(u * 3, y / half, 37));
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
    // Far trunks, paler the farther.
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
    canvas.Below([](float x) { return 790 + 14 * Fractal(x / 400, 1, 340, 4); },
                 [&](float x, float, float depth) {
                     const float near = depth + 40, u = (x - 960) / near, w = std::log(near) * 4;
                     const float litter = Fractal(u * 9, w * 11, 341, 5, 0.75f),
                                 moss = Ramp(-0.1f, 0.4f, Fractal(u * 1.2f, w * 1.6f, 342, 4));
                     Colour ground = Mix(Rgb(0x6b5a44), Rgb(0x9c8660), 0.5f + litter * 0.8f);
                     ground =
                         Mix(ground, Mix(Rgb(0x5c6a38), Rgb(0x8d9a50), 0.5f + litter * 0.7f), moss * 0.75f);
                     const float field = Fractal(u * 0.75f + 2, w * 0.9f, 343, 5, 0.42f) - 0.02f,
                                 snow = Ramp(0.0f, 0.10f, field);
                     const Colour white =
                         Mix(Rgb(0xa9bacb), Rgb(0xf3f1ea), Ramp(0, 0.4f, field + 0.1f * litter));
                     return Mix(Mix(ground * 0.85f, white, snow), Mix(fog, Rgb(0xeadfc0), 0.5f),
                                std::exp(-depth / 60));
                 });
    for (int i = 0; i < 420; ++i) {
        const float z = std::sqrt(random.Next()), x = random.Between(0, 1920), y = 850 + 225 * z,
                    near = y - 750;
        if (Fractal(x / 240, y / 80, 350, 3) < 0.08f)
            continue;
        const float size = near * 0.021f;
        canvas.Disc(x, y + size, size * 1.5f, Rgb(0x4a5530), 0.5f, size);
        for (int petal = 0; petal < 6; ++petal)
            canvas.Petal(x, y, static_cast<float>(petal) * pi / 3 + x, size * 1.1f, size * 0.9f,
                         Rgb(0x4b4bb4), Rgb(0x8f8de6), 0.95f, 0.6f);
        canvas.Disc(x, y, size * 0.25f, Rgb(0xf6f3df), 0.9f, 0.6f);
    }
    for (const Birch_Look &birch : std::initializer_list<Birch_Look>{{620, 838, 30, 0.02f, 0.34f, 0.7f},
                                                                     {1010, 842, 33, -0.03f, 0.3f, 0.7f},
                                                                     {1790, 850, 34, 0.02f, 0.3f, 0.7f},
                                                                     {1420, 835, 27, 0.01f, 0.4f, 0.8f},
                                                                     {430, 890, 54, -0.02f, 0.14f, 0.4f},
                                                                     {800, 905, 50, 0.03f, 0.13f, 0.4f},
                                                                     {90, 900, 58, 0.03f, 0.12f, 0.4f},
                                                                     {255, 1010, 92, 0.015f, 0, 0}})
        Birch(canvas, random, birch, fog);
    canvas.Bloom(0.72f, 60, 0.25f);
    Vignette(canvas, 0.2f);
}

void April(Canvas &canvas) {
    Random random(404);
    Sky(canvas, {{0, 0x4d6177}, {0.4f, 0x7189a0}, {0.8f, 0xb3c2c8}, {1, 0xdfe3d8}}, 700);
    const Coarse<Cloud> clouds(3, [](float x, float y) {
        const float flat = 1 + 900 / (760 - y); // clouds lie flatter towards the horizon
        return Cloud_At((x - 960) * flat / 1500, std::log(760 - y) * -2.6f, 411,
                        0.10f + 0.3f * Ramp(200, 1200, x) - 0.25f * Ramp(430, 640, y), -0.7f, -0.6f, 0.75f);
    });
    canvas.Each(
        [&](float x, float y, Colour &pixel) {
            const Cloud c = clouds.At(x, y);
            const float storm = Ramp(300, 1500, x + y * 0.3f);
            const Colour lit = Mix(Rgb(0xf3eee2), Rgb(0x8797a6), storm),
                         dark = Mix(Rgb(0x8d9cab), Rgb(0x3b4a5f), storm);
            pixel = Mix(pixel, Mix(dark, lit, Unit(0.42f + 0.55f * c.light)), c.cover * 0.92f);
            // Rain hanging from the cloud in slanting veils.
            const float veil = Ramp(-0.2f, 0.5f, Fractal((x + y * 0.25f) / 130, y / 1600, 414, 4)) *
                               Ramp(700, 1250, x) * Ramp(180, 480, y);
            pixel = Mix(pixel, Rgb(0x66798c), veil * 0.55f);
        },
        0, 720);
    const Ridge far{590, 70, 760, 421}, next{640, 60, 640, 422};
    Hill(canvas, far, Rgb(0x5c7a86), Rgb(0x8ba39a), 70, 0.1f);
    Hill(canvas, next, Rgb(0x55794f), Rgb(0x86a96a), 60, 0.2f);
    // The bow, brightest before the dark cloud, with the sky inside it a little lighter.
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
    struct Field {
        Ridge ridge;
        unsigned crest, foot;
        float rows;
    };
    const Field fields[] = {{{680, 60, 720, 431}, 0x9cba5a, 0x6f9a45, 0},
                            {{722, 66, 800, 432}, 0xd8c93c, 0xb0b03a, 26},
                            {{768, 72, 900, 433}, 0x8fb84c, 0x558438, 0},
                            {{828, 80, 1000, 434}, 0x74a544, 0x3f7434, 46},
                            {{915, 90, 1200, 435}, 0x9cc552, 0x47813a, 0}};
    int nearness = 0;
    for (const Field &field : fields) {
        const auto k = static_cast<float>(nearness++);
        const auto &ridge = field.ridge;
        // Hedges and trees on the crest stand behind the next field.
        canvas.Below(ridge, [&](float x, float y, float depth) {
            const float cloud_shadow =
                Ramp(-0.25f, 0.25f,
                     Fractal((x - 200) / 900, y / 230, 440, 3) - 0.25f * Ramp(700, 1700, x) + 0.12f);
            const float texture = Fractal(x / (16 + 5 * k), (y * 2) / (9 + 3 * k), 441, 4, 0.6f);
            const float line = field.rows > 0
                                   ? 0.5f + 0.5f * std::sin((x + 1.9f * (depth + 60) * (x - 1300) / 900) /
                                                            field.rows * 2 * pi)
                                   : 0.5f;
            const Colour grass = Mix(Rgb(field.crest), Rgb(field.foot), 1 - std::exp(-depth / (50 + 22 * k)));
            return grass * ((0.52f + 0.58f * cloud_shadow) * (1 + 0.16f * texture) *
                            (0.92f + 0.16f * Ramp(0.1f, 0.9f, line)));
        });
        if (k < 4) {
            for (int i = 0; i < 46; ++i) {
                const float x = random.Between(-20, 1940), grove = Noise(x / 170, k, 450);
                if (grove < 0.12f)
                    continue;
                const float height = (9 + 8 * k) * (0.7f + grove) * random.Between(0.7f, 1.3f);
                Leafy_Tree(canvas, random, x, ridge(x) + 3 + k, height, Rgb(0x2f4f2c),
                           Mix(Rgb(0xa6bf58), Rgb(0xc8d476), random.Next()), -0.8f);
            }
        }
    }
    Leafy_Tree(canvas, random, 205, 940, 250, Rgb(0x2c4a26), Rgb(0xb7cc5c), -0.8f);
    Leafy_Tree(canvas, random, 345, 925, 150, Rgb(0x345429), Rgb(0xf2e6da), -0.8f);
    for (int i = 0; i < 3200; ++i) {
        const float z = std::sqrt(random.Next()), x = random.Between(0, 1920), y = 985 + 130 * z;
        Blade(canvas, random, x, y, 16 + 26 * z, Rgb(0x3d7031),
              Mix(Rgb(0x6fa043), Rgb(0xb5d265), random.Next()));
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
    canvas.Bloom(0.75f, 50, 0.3f);
    canvas.Glow(330, 330, 420, Colour{0.10f, 0.08f, 0.03f});
    Vignette(canvas, 0.15f);
}
