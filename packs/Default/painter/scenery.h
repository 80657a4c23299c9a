// The scenery that several months share: ridges, water, trees, stars, snow, clouds and grass. Pictures are
// painted from back to front, so later calls are nearer.
#pragma once

#include "canvas.h"

/// The upper edge of a hill or a mountain range.
struct Ridge {
    float base;   ///< the height around which the edge rises and falls
    float height; ///< how far it rises and falls
    float width;  ///< of its largest forms
    std::uint32_t seed;
    float sharp = 0; ///< 0 rolling hills, 1 rock
    int octaves = 5;
    float tilt = 0; ///< fall from the left end to the right end
    float operator()(float x) const;
};

/// Fills the canvas from the top to `bottom` with a gradient.
void Sky(Canvas &canvas, const Gradient &colours, float bottom = picture_height);

/// Draws a ridge in haze: `crest` at its edge, changing to `foot` over `fade` units. `texture`, 0 to 1,
/// mottles it.
void Hill(Canvas &canvas, const Ridge &ridge, Colour crest, Colour foot, float fade, float texture = 0.15f);

struct Conifer_Look {
    Colour needles;
    Colour lit; ///< on top of the branches: snow or light
    float lit_strength = 0;
    float soft = 0;
};
void Conifer(Canvas &canvas, Random &random, float x, float foot, float height, const Conifer_Look &look);

/// Draws conifers along a ridge, about `spacing` apart, with their feet up to `depth` below it.
void Conifers(Canvas &canvas, Random &random, const Ridge &ridge, float left, float right, float spacing,
              float low, float high, float depth, const Conifer_Look &look);

/// Draws a round tree of dabs of paint, lit from the side `light_x` (-1 left, 1 right).
void Leafy_Tree(Canvas &canvas, Random &random, float x, float foot, float height, Colour shade, Colour lit,
                float light_x, float soft = 0);

struct Water_Look {
    float horizon;
    float bottom = picture_height;
    float waves = 1;        ///< 0 a mirror, 1 a breeze
    Colour deep;            ///< the colour seen from above
    float clearness = 0.5f; ///< share of `deep` at the lower edge; it falls to zero with distance
    std::uint32_t seed = 1;
};
/// Draws water that mirrors the picture above its horizon.
void Water(Canvas &canvas, const Water_Look &look);

/// Draws stars. `weight(x, y)`, 0 to 1, sets where they are and how many.
template <class Weight>
void Stars(Canvas &canvas, Random &random, int count, Weight weight, float brightest = 1) {
    for (int i = 0; i < count; ++i) {
        const float x = random.Between(0, picture_width), y = random.Between(0, picture_height);
        const float rare = std::pow(random.Next(), 9.0f), hue = std::sqrt(random.Next());
        if (random.Next() > weight(x, y))
            continue;
        const Colour light = Mix(Colour{1, 0.82f, 0.62f}, Colour{0.72f, 0.84f, 1}, hue);
        canvas.Disc(x, y, 0.45f + 0.9f * rare, light * brightest, 0.25f + 0.75f * rare, 0.6f);
        if (rare > 0.75f)
            canvas.Disc(x, y, 0, light * brightest, 0.35f, 7);
    }
}

/// Draws falling snow, with flakes from fine to near and blurred.
void Snowfall(Canvas &canvas, Random &random, int count, Colour colour, float largest, float strength);

struct Cloud {
    float cover; ///< 0 clear, 1 thick
    float light; ///< -1 turned away from the light, 1 towards it
};
constexpr Cloud Mix(Cloud a, Cloud b, float t) {
    return {a.cover + (b.cover - a.cover) * t, a.light + (b.light - a.light) * t};
}
/// Returns the cloud at a point of a noise plane. `wanted`, -1 to 1, opens or closes the cover; the light
/// comes from (light_x, light_y).
Cloud Cloud_At(float x, float y, std::uint32_t seed, float wanted, float light_x, float light_y,
               float thick = 1);

/// Draws a blade of grass.
void Blade(Canvas &canvas, Random &random, float x, float foot, float height, Colour root, Colour tip,
           float soft = 0);

/// Darkens the corners a little.
void Vignette(Canvas &canvas, float strength);

/// Darkens the upper left, so that the white names of the desktop's icons are legible: by the share
/// `strength` at the left edge, falling to nothing at the middle.
void Shade_Icons(Canvas &canvas, float strength);

/// The twelve pictures.
void January(Canvas &canvas);
void February(Canvas &canvas);
void March(Canvas &canvas);
void April(Canvas &canvas);
void May(Canvas &canvas);
void June(Canvas &canvas);
void July(Canvas &canvas);
void August(Canvas &canvas);
void September(Canvas &canvas);
void October(Canvas &canvas);
void November(Canvas &canvas);
void December(Canvas &canvas);
