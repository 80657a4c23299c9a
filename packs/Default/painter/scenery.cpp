#include "scenery.h"

float Ridge::operator()(float x) const {
    const float u = x / width, rolling = Fractal(u, 0.37f, seed, octaves, 0.42f);
    const float line = base + tilt * (x / picture_width - 0.5f);
    if (sharp <= 0)
        return line - height * rolling;
    const float rock =
        Crests(u + 0.15f * Fractal(u * 3, 5, seed + 7, 4), 0.61f, seed, octaves + 2, 0.47f) * 2 - 1;
    return line - height * Mix(rolling, rock, sharp);
}

void Sky(Canvas &canvas, const Gradient &colours, float bottom) {
    canvas.Each([&](float, float y, Colour &pixel) { pixel = colours.At(y / bottom); }, 0, bottom);
}

void Hill(Canvas &canvas, const Ridge &ridge, Colour crest, Colour foot, float fade, float texture) {
    canvas.Below(ridge, [&](float x, float y, float depth) {
        const float t = 1 - std::exp(-depth / fade);
        const float mottled = texture > 0 ? Fractal(x / 90, (y + depth) / 40, ridge.seed + 50, 5, 0.6f) : 0;
        return Mix(crest * (1 + texture * 2 * mottled), foot, t);
    });
}

void Conifer(Canvas &canvas, Random &random, float x, float foot, float height, const Conifer_Look &look) {
    const float half = height * random.Between(0.17f, 0.23f), lean = height * random.Between(-0.02f, 0.02f);
    const float top = foot - height;
    canvas.Stroke(x, foot - height * 0.02f, height * 0.022f + 0.3f, x + lean, top, 0.3f, look.needles, 1,
                  look.soft);
    const int tiers = std::clamp(static_cast<int>(height / 7), 7, 44), around = height > 90   ? 11
                                                                                : height > 30 ? 5
                                                                                              : 2;
    // Upwards from below: the tips of upper branches hang in front of lower branches.
    for (int i = tiers * around - 1; i >= 0; --i) {
        const float t = (static_cast<float>(i) + random.Next()) / static_cast<float>(tiers * around);
        const float y = top + height * (0.015f + 0.86f * t), trunk = Mix(x + lean, x, t);
        const float spread = half * std::pow(t, 0.85f) * Ramp(1.25f, 0.85f, t) * random.Between(0.6f, 1.08f);
        // Branches point in all directions. Those towards the eye look short and hang over the others.
        const float turn = around == 2 ? (i % 2 ? 0.5f : -0.5f) : random.Between(-0.58f, 0.58f);
        const float out = spread * std::sin(turn * pi), front = std::max(std::cos(turn * pi), 0.0f);
        const float drop = spread * (random.Between(0.28f, 0.5f) + 0.5f * front);
        const float tier = height / static_cast<float>(tiers), thick = tier * (0.35f + 0.7f * t);
        const float tip_x = trunk + out, tip_y = y + drop, bend_x = trunk + out * 0.6f,
                    bend_y = y + drop * 0.65f;
        const Colour dark = look.needles * (0.75f + 0.35f * front + 0.25f * random.Next());
        canvas.Curve(trunk + out * 0.15f, y, bend_x, bend_y, tip_x, tip_y, thick * (0.7f + 0.5f * front),
                     thick * 0.35f, dark, 1, look.soft);
        if (look.lit_strength > 0 && random.Next() < 0.75f) {
            const Colour lit = Mix(dark, look.lit, look.lit_strength * random.Between(0.4f, 1));
            canvas.Curve(Mix(trunk, tip_x, 0.45f), Mix(y, tip_y, 0.38f) - thick * 0.3f,
                         Mix(bend_x, tip_x, 0.4f), Mix(bend_y, tip_y, 0.4f) - thick * 0.4f, tip_x,
                         tip_y - thick * 0.1f, thick * (0.5f + 0.4f * front), thick * 0.3f, lit, 0.9f,
                         look.soft + thick * 0.25f);
        }
    }
}

void Conifers(Canvas &canvas, Random &random, const Ridge &ridge, float left, float right, float spacing,
              float low, float high, float depth, const Conifer_Look &look) {
    struct Tree {
        float x, foot, height;
    };
    std::vector<Tree> trees;
    for (float x = left; x < right; x += spacing * random.Between(0.1f, 0.9f)) {
        const float down = depth * random.Next() * random.Next();
        const float grove =
            Unit(0.5f + 1.1f * Fractal(x / (spacing * 22), down / (spacing * 14), ridge.seed, 3));
        if (random.Next() < grove * 1.7f - 0.3f)
            trees.push_back(
                {x, ridge(x) + down, Mix(low, high, (0.3f + 0.7f * grove) * random.Between(0.35f, 1))});
    }
    std::stable_sort(trees.begin(), trees.end(),
                     [](const Tree &a, const Tree &b) { return a.foot < b.foot; });
    for (const Tree &tree : trees)
        Conifer(canvas, random, tree.x, tree.foot, tree.height, look);
}

void Leafy_Tree(Canvas &canvas, Random &random, float x, float foot, float height, Colour shade, Colour lit,
                float light_x, float soft) {
    const float wide = height * random.Between(0.33f, 0.44f),
                middle = foot - height * (height < 45 ? 0.4f : 0.54f);
    if (height > 45)
        for (const float way : {-0.3f, 0.05f, 0.35f})
            canvas.Curve(x, foot, x, foot - height * 0.2f, x + way * wide, middle, height * 0.042f,
                         height * 0.02f, shade * 0.4f, 1, soft);
    struct Lump {
        float x, y, radius;
    };
    std::vector<Lump> lumps{{0, 0, wide * 0.5f}};
    const int count = height < 40 ? 5 : 21;
    for (int i = 0; i < count; ++i) {
        const float angle = (static_cast<float>(i) + random.Next()) / static_cast<float>(count) * 2 * pi;
        const float far = random.Between(0.3f, 0.88f), low = std::sin(angle) > 0 ? 0.3f : 0.42f;
        lumps.push_back({std::cos(angle) * far * wide, std::sin(angle) * far * height * low,
                         wide * random.Between(0.22f, 0.4f)});
    }
    std::stable_sort(lumps.begin(), lumps.end(), [](const Lump &a, const Lump &b) { return a.y > b.y; });
    const float size = std::max(height * (height < 40 ? 0.05f : 0.012f), 0.7f);
    const int dabs = height < 40 ? 9 : static_cast<int>(std::min(height * 1.6f + 30, 420.0f));
    for (const Lump &lump : lumps) {
        // Each lump of leaves has a dark underside and a lit cap of its own.
        const float place = 0.25f * (lump.x / wide * light_x - lump.y / (height * 0.42f));
        for (int i = 0; i < dabs; ++i) {
            const float t = static_cast<float>(i) / static_cast<float>(dabs),
                        angle = random.Between(0, 2 * pi);
            const float r = std::sqrt(random.Next()) * (0.94f + 0.1f * random.Bell_Shaped());
            const float u = std::cos(angle) * r + 0.25f * light_x * (t - 0.5f),
                        v = std::sin(angle) * r * 0.85f - 0.3f * (t - 0.5f);
            const float faced = Unit(0.34f + place + 0.34f * (u * light_x - v) + 0.3f * (t - 0.5f) +
                                     0.16f * random.Bell_Shaped());
            canvas.Disc(x + lump.x + u * lump.radius, middle + lump.y + v * lump.radius,
                        size * random.Between(0.6f, 1.4f), Mix(shade, lit, faced), 0.9f, soft + size * 0.4f);
        }
    }
}

void Water(Canvas &canvas, const Water_Look &look) {
    const Canvas above = canvas;
    const float full = look.bottom - look.horizon;
    canvas.Each(
        [&](float x, float y, Colour &pixel) {
            const float v = y - look.horizon, near = v + 5;
            // Waves look smaller and flatter with distance; the logarithm keeps their proportions.
            const float u = (x - picture_width / 2) / near, w = std::log(near) * 9;
            const float slope = 0.6f * Fractal(u * 1.6f, w * 1.5f, look.seed, 4, 0.62f) +
                                0.4f * Fractal(u * 5, w * 4.3f, look.seed + 31, 3, 0.6f);
            const float swing = look.waves * (5 + near * 0.75f);
            // Facets too small to see smear the reflection vertically.
            constexpr int facets = 5;
            Colour mirrored;
            for (int i = 0; i < facets; ++i) {
                const float facet = slope + 0.9f * (static_cast<float>(i) / (facets - 1) - 0.5f);
                const float source = look.horizon - std::abs(v + facet * swing) - 0.5f;
                mirrored =
                    mirrored + above.At(x + slope * look.waves * 5, std::max(source, 0.0f)) * (1.0f / facets);
            }
            pixel = Mix(mirrored, look.deep,
                        look.clearness * std::pow(v / full, 0.7f) * (1 - 0.35f * slope * look.waves));
        },
        look.horizon, look.bottom);
}

void Snowfall(Canvas &canvas, Random &random, int count, Colour colour, float largest, float strength) {
    for (int i = 0; i < count; ++i) {
        const float near = std::pow(random.Next(), 4.0f), size = 0.5f + largest * near;
        canvas.Disc(random.Between(0, picture_width), random.Between(0, picture_height), size, colour,
                    strength * random.Between(0.3f, 1) * (1 - 0.75f * near), 0.6f + size * 1.1f);
    }
}

Cloud Cloud_At(float x, float y, std::uint32_t seed, float wanted, float light_x, float light_y,
               float thick) {
    const float bent_x = x + 0.5f * Fractal(x * 1.3f, y * 1.3f, seed + 900, 4);
    const float bent_y = y + 0.5f * Fractal(x * 1.3f + 7, y * 1.3f, seed + 901, 4);
    const float here = Fractal(bent_x, bent_y, seed, 7, 0.55f);
    const float lightward = Fractal(bent_x + light_x * 0.16f, bent_y + light_y * 0.16f, seed, 6, 0.55f);
    return {Ramp(0, 0.45f / thick, here + wanted), std::clamp((here - lightward) * 4, -1.0f, 1.0f)};
}

void Blade(Canvas &canvas, Random &random, float x, float foot, float height, Colour root, Colour tip,
           float soft) {
    const float lean = height * random.Between(-0.45f, 0.45f), wide = std::max(height * 0.016f, 0.9f);
    const float middle_x = x + lean * 0.2f, middle_y = foot - height * 0.6f;
    const Colour half = Mix(root, tip, 0.5f);
    const float end_y = foot - height * random.Between(0.85f, 1);
    canvas.Stroke(x, foot, wide, middle_x, middle_y, wide * 0.8f, Mix(root, half, 0.5f), 1, soft);
    canvas.Curve(middle_x, middle_y, x + lean * 0.4f, foot - height * 0.85f, x + lean, end_y, wide * 0.8f,
                 0.2f, tip, 1, soft);
}

void Shade_Icons(Canvas &canvas, float strength) {
    constexpr Colour taken{1.05f, 0.98f, 0.8f}; // removes the least blue, as in a sky without the sun
    canvas.Each([&](float x, float y, Colour &pixel) {
        pixel = pixel * (Colour{1, 1, 1} + taken * (-strength * Ramp(860, 100, x) * Ramp(1000, 500, y)));
    });
}

void Vignette(Canvas &canvas, float strength) {
    canvas.Each([&](float x, float y, Colour &pixel) {
        const float dx = x / picture_width * 2 - 1, dy = y / picture_height * 2 - 1;
        pixel = pixel * (1 - strength * Ramp(0.5f, 2.2f, dx * dx + dy * dy));
    });
}
