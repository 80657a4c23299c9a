// June, July and August.
#include "scenery.h"

namespace {

/// Returns how far a point of June's picture is out at sea; below 0 is sand.
float Out_At_Sea(float x, float y) {
    return (1330 - x) * 0.60f + (930 - y) * 0.80f + 70 * Fractal(x / 640, y / 640, 611, 3) +
           16 * Fractal(x / 120, y / 120, 612, 4);
}

/// Returns the foam of a wave that has reached `front`: a sharp edge towards the land, lace towards the sea.
float Foam(float x, float y, float out, float front, float wide) {
    const float swing = 26 * Fractal(x / 260, y / 260, static_cast<unsigned>(front) + 620, 4);
    const float behind = out - front - swing;
    if (behind < -2 || behind > wide)
        return 0;
    const float bend = 8 * Noise(x / 22, y / 22, 630);
    const float lace = Crests((x + bend) / 34, (y - bend) / 34, 631, 4, 0.55f), t = behind / wide;
    return Ramp(-2, 1.5f, behind) *
           Unit(Ramp(0.16f, 0, t) + Ramp(0.34f + 0.4f * t, 0.62f + 0.4f * t, lace) * (1 - t));
}

/// A rowing boat from above; the shadow falls on the sea floor.
void Rowing_Boat(Canvas &canvas, float x, float y, float angle) {
    const float c = std::cos(angle), s = std::sin(angle);
    const auto hull = [&](float px, float py, float size) {
        const float u = ((px - x) * c + (py - y) * s) / size,
                    v = std::abs((py - y) * c - (px - x) * s) / size;
        const float half = u > -52 && u < 66
                               ? 23 * std::sqrt(Unit(1 - std::pow(std::abs(u - 4) / 62, u < 4 ? 3.4f : 2.1f)))
                               : -9;
        return (half - v) * size;
    };
    const auto fill = [&](float size, float dx, float dy, float soft, float strength, auto colour) {
        canvas.Shape(
            x - 90, y - 90, x + 130, y + 130,
            [&](float px, float py) { return strength * canvas.Edge(hull(px - dx, py - dy, size), soft); },
            colour);
    };
    fill(1, 34, 42, 16, 0.5f, [](float, float) { return Rgb(0x0a5a6c); });
    fill(1.03f, 0, 0, 0, 1, [&](float px, float py) {
        return Rgb(0xfbf6ea) * (1 - 0.25f * Ramp(-20, 30, (px - x) * 0.5f + (py - y) * 0.8f));
    });
    fill(0.86f, 0, 0, 0, 1, [&](float px, float py) {
        const float v = (py - y) * c - (px - x) * s, u = (px - x) * c + (py - y) * s;
        const float plank = Ramp(0.82f, 1, std::abs(std::sin(v * 0.55f)));
        return Mix(Rgb(0xb98a58), Rgb(0x6a472c), 0.5f * plank + 0.45f * Ramp(4, -18, v)) *
               (1 + 0.12f * Noise(u / 14, v, 641));
    });
    for (const float at : {-28.0f, 2.0f, 32.0f}) {
        const float wide = at > 20 ? 15.0f : 18.5f;
        canvas.Stroke(x + c * at + s * wide + 2, y + s * at - c * wide + 3, 8, x + c * at - s * wide + 2,
                      y + s * at + c * wide + 3, 8, Rgb(0x4a3020), 0.6f, 2);
        canvas.Stroke(x + c * at + s * wide, y + s * at - c * wide, 8, x + c * at - s * wide,
                      y + s * at + c * wide, 8, Rgb(0xe0b982));
    }
    for (const float side : {-1.0f, 1.0f}) {
        const float root_x = x + c * 4 - s * 20 * side, root_y = y + s * 4 + c * 20 * side;
        const float end_x = x - c * 44 - s * 50 * side, end_y = y - s * 44 + c * 50 * side;
        canvas.Stroke(root_x, root_y, 2.6f, end_x, end_y, 2.6f, Rgb(0xd9b27e));
        canvas.Stroke(Mix(root_x, end_x, 0.72f), Mix(root_y, end_y, 0.72f), 3, end_x, end_y, 7,
                      Rgb(0xf2e3c4));
    }
}

void Footprints(Canvas &canvas, Random &random) {
    float x = 1560, y = 1110, angle = -0.95f;
    for (int i = 0; i < 26; ++i) {
        angle += random.Between(-0.07f, 0.10f);
        x += 34 * std::cos(angle), y += 34 * std::sin(angle);
        const float side = i % 2 ? 8.0f : -8.0f, px = x - std::sin(angle) * side,
                    py = y + std::cos(angle) * side;
        const float c = std::cos(angle), s = std::sin(angle);
        if (Out_At_Sea(px, py) > -45)
            continue;
        const auto print = [&](float dx, float dy, Colour colour, float strength) {
            canvas.Stroke(px + dx - c * 7, py + dy - s * 7, 5.5f, px + dx - c * 2, py + dy - s * 2, 5, colour,
                          strength, 1.6f);
            canvas.Stroke(px + dx - c * 2, py + dy - s * 2, 5, px + dx + c * 6, py + dy + s * 6, 8.5f, colour,
                          strength, 1.6f);
        };
        print(1.4f, 1.8f, Rgb(0xfff0cf), 0.5f);
        print(0, 0, Rgb(0x9c7b52), 0.6f);
    }
}

/// A small sailing boat against the light.
void Sail(Canvas &canvas, float x, float foot, float size, Colour hull, Colour cloth) {
    const auto triangle = [&](float root_x, float reach, float top) {
        canvas.Shape(
            x - size, foot - size * 1.3f, x + size, foot,
            [&](float px, float py) {
                const float t = (py - (foot - top)) / (top - size * 0.14f), u = (px - root_x) / reach;
                return t < 0 || t > 1 ? 0 : canvas.Edge(std::min(u, std::pow(t, 0.8f) - u) * std::abs(reach));
            },
            [&](float, float) { return cloth; });
    };
    triangle(x, -size * 0.42f, size * 1.18f);
    triangle(x + size * 0.04f, size * 0.36f, size);
    canvas.Stroke(x - size * 0.4f, foot - size * 0.06f, size * 0.1f, x + size * 0.42f, foot - size * 0.08f,
                  size * 0.06f, hull);
    canvas.Stroke(x, foot, 1.2f, x, foot - size * 1.22f, 0.8f, hull);
}

} // namespace

void June(Canvas &canvas) {
    Random random(606);
    const Gradient sea{{0, 0xe6e2c0},     {0.05f, 0xb9e3cd}, {0.16f, 0x74d3c6}, {0.32f, 0x36b7bd},
                       {0.55f, 0x1791ae}, {0.8f, 0x10709c},  {1, 0x0d5787}};
    const Coarse<float> deepness(4, [](float x, float y) {
        const float bars = 130 * Fractal(x / 520, y / 520, 650, 5, 0.45f) +
                           40 * Fractal((x + y) / 500, (y - x) / 130, 651, 4);
        const float out = Out_At_Sea(x, y);
        return out + bars * Ramp(20, 420, out);
    });
    canvas.Each([&](float x, float y, Colour &pixel) {
        const float out = Out_At_Sea(x, y);
        // Sand: wind ripples when dry, dark and smooth where the last wave was.
        const float ripple =
            Fractal((x * 0.8f - y * 0.6f) / 44, (x * 0.6f + y * 0.8f) / 12, 660, 3) * Ramp(-110, -230, out);
        const float grain = Noise(x * 0.9f, y * 0.9f, 661) + Noise(x * 0.37f, y * 0.37f, 662);
        Colour sand = Mix(Rgb(0xe6cf9f), Rgb(0xf6e6c0), 0.5f + 0.5f * Fractal(x / 300, y / 300, 663, 4)) *
                      (1 + 0.09f * ripple + 0.03f * grain);
        const float wet = Ramp(-112, -70, out + 34 * Fractal(x / 210, y / 210, 664, 4));
        sand = Mix(sand, Mix(Rgb(0xb08f62), Rgb(0xc9b28a), Ramp(-80, 0, out)), wet * 0.85f);
        const float deep = deepness.At(x, y);
        Colour water = sea.At(std::max(deep, 0.0f) / 1250);
        const float meadow = Ramp(0.12f, 0.42f, Fractal(x / 260, y / 260, 670, 6, 0.55f)) *
                             Ramp(170, 420, out) * Ramp(1250, 600, out);
        water = Mix(water, Rgb(0x0c6478), meadow * 0.42f);
        // Light that the waves gather on the floor, and the shine of long swell.
        const float bend = 14 * Fractal(x / 60, y / 60, 671, 3);
        const float net = std::pow(Crests((x + bend) / 66, (y - bend) / 52, 672, 3, 0.45f), 3.0f);
        water = water * (1 + 0.55f * net * Ramp(640, 60, out) * Ramp(0, 50, out));
        const float swell =
            Fractal((x * 0.8f - y * 0.6f) / 420, (out + 30 * Noise(x / 300, y / 300, 673)) / 46, 674, 3);
        water = water * (1 + 0.10f * swell + 0.05f * Fractal(x / 26, y / 16, 675, 3));
        pixel = Mix(sand, water, Ramp(-3, 46, out) * 0.95f);
        const float foam = std::max(
            {Foam(x, y, out, 2, 90), 0.85f * Foam(x, y, out, 128, 95), 0.55f * Foam(x, y, out, 262, 70)});
        const float shadow =
            std::max(Foam(x - 3, y - 4, out, 2, 90), 0.7f * Foam(x - 5, y - 7, out, 128, 95));
        pixel = pixel * (1 - 0.22f * shadow * (1 - foam));
        pixel = Mix(pixel, Rgb(0xfdfdf8), foam * 0.93f);
    });
    Footprints(canvas, random);
    Rowing_Boat(canvas, 1540, 235, 0.62f);
    canvas.Bloom(0.8f, 30, 0.2f);
    Vignette(canvas, 0.18f);
}

void July(Canvas &canvas) {
    Random random(707);
    constexpr float horizon = 655, sun_x = 1330, sun_y = 585;
    Sky(canvas,
        {{0, 0x2b3570},
         {0.25f, 0x5d4b8c},
         {0.5f, 0xb25f8c},
         {0.72f, 0xee8468},
         {0.9f, 0xfdb765},
         {1, 0xffd383}},
        horizon);
    canvas.Glow(sun_x, sun_y, 240, Colour{0.85f, 0.42f, 0.12f});
    canvas.Glow(sun_x, sun_y, 700, Colour{0.22f, 0.07f, 0.03f});
    canvas.Disc(sun_x, sun_y, 50, Colour{1.5f, 0.98f, 0.36f}, 1, 2);
    const Coarse<Cloud> clouds(3, [](float x, float y) {
        const float flat = 1 + 700 / (horizon + 40 - y);
        return Cloud_At((x - 700) * flat / 1750, std::log(horizon + 60 - y) * -2.3f, 733,
                        -0.03f + 0.12f * Bell((y - 300) / 200) - 0.3f * Ramp(560, 650, y), (sun_x - x) / 700,
                        0.8f, 0.8f);
    });
    canvas.Each(
        [&](float x, float y, Colour &pixel) {
            const Cloud c = clouds.At(x, y);
            const float near_sun = std::exp(-std::hypot(x - sun_x, (y - sun_y) * 1.3f) / 620);
            const Colour lit = Mix(Rgb(0xe57a86), Colour{1.5f, 0.72f, 0.28f}, near_sun),
                         dark = Mix(Rgb(0x4c4379), Rgb(0xb8586c), near_sun + 0.3f * Ramp(200, 600, y));
            pixel = Mix(pixel, Mix(dark, lit, Unit(0.4f + 0.75f * c.light)),
                        c.cover * 0.85f * (1 - 0.8f * Bell(std::hypot(x - sun_x, y - sun_y) / 80)));
        },
        0, horizon);
    const Ridge cape{horizon - 6, 34, 420, 741, 0.2f};
    canvas.Below(
        [&](float x) { return Mix(horizon + 8, cape(x) - 22, Ramp(620, 120, x)); },
        [](float, float, float depth) { return Mix(Rgb(0x7d4a73), Rgb(0xb46678), Unit(depth / 70)); },
        horizon);
    Sail(canvas, 1085, horizon + 3, 52, Rgb(0x5a2f4a), Rgb(0xa34c55));
    Water(canvas, {horizon, picture_height, 1.0f, Rgb(0x2a2b62), 0.62f, 751});
    // The path of the sun: facets that catch it, wider and rarer towards the shore.
    canvas.Each(
        [&](float x, float y, Colour &pixel) {
            const float v = y - horizon, near = v + 5, u = (x - 960) / near, w = std::log(near) * 9;
            const float facet =
                0.55f * Noise(u * 3.1f, w * 3.1f, 761) + 0.45f * Fractal(u * 8, w * 7, 762, 3, 0.6f);
            const float path = Bell((x - sun_x) / (46 + v * 0.42f)) * (0.35f + 0.65f * std::exp(-v / 300));
            const float spark = Ramp(0.42f - 0.55f * path, 0.75f - 0.45f * path, facet) * path;
            pixel = pixel + Colour{1.9f, 0.95f, 0.36f} * (spark * 0.8f);
        },
        horizon);
    canvas.Mirror(); // moves the calm water to the right, under the calendar
    canvas.Bloom(0.8f, 44, 0.4f);
    Vignette(canvas, 0.25f);
}

void August(Canvas &canvas) {
    Random random(808);
    Sky(canvas, {{0, 0x050b22}, {0.45f, 0x0c1c44}, {0.75f, 0x1f3a63}, {0.92f, 0x55647a}, {1, 0x8c7a6c}}, 800);
    // The galaxy rises from the hills to the top, its dark lanes along the middle.
    const auto across = [](float x, float y) { return (x - 640) * 0.87f + (y - 420) * 0.49f; };
    const Coarse<Colour> galaxy(2, [&](float x, float y) {
        const float warp = 60 * Fractal(x / 260, y / 260, 811, 4), off = across(x, y) + warp * 0.8f,
                    along = (y - 420) * 0.87f - (x - 640) * 0.49f;
        const float cloudy = Fractal(x / 170, y / 170, 812, 6, 0.55f);
        const float band = Bell(off / 210) * (0.55f + 0.75f * cloudy),
                    core = Bell(off / 95) * Bell((along - 190) / 330);
        const float lane =
            Ramp(0.46f, 0.8f,
                 Crests((off * 0.5f + x * 0.2f) / 190, along / 420 + off / 500, 813, 6, 0.55f) +
                     0.2f * cloudy) *
            Bell((off - 12) / 120);
        const Colour light =
            Mix(Rgb(0x4a5a94), Rgb(0x9a86a8), Ramp(-300, 300, along)) * std::max(band, 0.0f) +
            Rgb(0xe0b088) * (core * (0.5f + 0.4f * cloudy));
        const float rose = Ramp(0.2f, 0.6f, Fractal(x / 120 + 5, y / 120, 814, 4)) * Bell(off / 110);
        return (light * 0.95f + Rgb(0x9c4a7c) * (rose * 0.3f)) * ((1 - 0.86f * lane) * Ramp(800, 560, y));
    });
    canvas.Each([&](float x, float y, Colour &pixel) { pixel = pixel + galaxy.At(x, y); }, 0, 800);
    Stars(canvas, random, 9000,
          [&](float x, float y) { return Ramp(780, 420, y) * (0.25f + 0.75f * Bell(across(x, y) / 260)); });
    for (float t = 0; t < 1; t += 0.02f)
        canvas.Stroke(1395 - 190 * t, 120 + 112 * t, 0.4f + 0.9f * t, 1391 - 190 * t, 122 + 112 * t,
                      0.4f + 0.9f * t, Colour{0.9f, 0.95f, 1}, t * t * 0.8f, 0.6f);
    const Ridge hills[] = {{742, 60, 640, 821}, {790, 50, 700, 822}, {850, 46, 900, 823}};
    const Colour crests[] = {Rgb(0x2c3f5c), Rgb(0x182a44), Rgb(0x0e1b30)},
                 feet[] = {Rgb(0x4f5c6c), Rgb(0x2d4054), Rgb(0x1a2a3c)};
    for (int i = 0; i < 3; ++i) {
        const auto k = static_cast<float>(i);
        Hill(canvas, hills[i], crests[i], feet[i], 70, 0.1f);
        Conifers(canvas, random, hills[i], -20, 1940, 8 + 4 * k, 5 + 4 * k, 16 + 10 * k, 4,
                 {crests[i] * 0.8f, {}, 0});
    }
    // A lone oak on the near hill.
    const Ridge near{905, 50, 1100, 829};
    Hill(canvas, near, Rgb(0x0a1424), Rgb(0x1c2430), 90, 0.1f);
    Random oak(8); // of its own, so that the oak keeps its shape
    Leafy_Tree(canvas, oak, 300, near(300) + 8, 320, Rgb(0x060c18), Rgb(0x1d2c42), 0.8f);
    // Wheat: stalks with ears, touched by the light of the horizon.
    for (int i = 0; i < 4200; ++i) {
        const float z = static_cast<float>(i) / 4200, x = random.Between(-20, 1940), foot = 960 + 230 * z,
                    height = 26 + 130 * z * random.Between(0.7f, 1.05f);
        const float lean = height * random.Between(-0.06f, 0.24f), top = foot - height, glint = random.Next();
        const Colour stalk = Mix(Rgb(0x1c2026), Rgb(0x5d5140), glint * (0.25f + 0.5f * z));
        canvas.Curve(x, foot, x, foot - height * 0.6f, x + lean, top, 0.8f + z, 0.6f + 0.7f * z, stalk);
        const float ear = height * 0.24f + 3, bow = ear * random.Between(0.25f, 0.7f);
        canvas.Curve(x + lean, top, x + lean + bow * 0.4f, top - ear * 0.6f, x + lean + bow, top - ear * 0.8f,
                     1.6f + 4.2f * z, 0.8f + 1.2f * z, stalk * 1.35f);
    }
    canvas.Bloom(0.35f, 24, 0.3f);
    Vignette(canvas, 0.3f);
}
