#include "canvas.h"

namespace {

/// Returns the screen value, 0 to 255, of a linear value. Up to the knee the light is unchanged; above it the
/// light approaches white.
float Screen_Value(float linear) {
    constexpr float knee = 0.7f;
    const float over = linear - knee;
    const float v =
        over <= 0 ? std::max(linear, 0.0f) : knee + (1 - knee) * (1 - std::exp(-over / (1 - knee)));
    return 255 * (v <= 0.0031308f ? 12.92f * v : 1.055f * std::pow(v, 1 / 2.4f) - 0.055f);
}

/// Replaces `count` values, `stride` apart, by their running mean over 2 * reach + 1 values.
void Blur_Line(Colour *values, std::size_t stride, int count, int reach, std::vector<Colour> &copy) {
    copy.resize(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        copy[static_cast<std::size_t>(i)] = values[static_cast<std::size_t>(i) * stride];
    const auto at = [&](int i) { return copy[static_cast<std::size_t>(std::clamp(i, 0, count - 1))]; };
    Colour sum;
    for (int i = -reach; i <= reach; ++i)
        sum = sum + at(i);
    for (int i = 0; i < count; ++i) {
        values[static_cast<std::size_t>(i) * stride] = sum * (1.0f / static_cast<float>(2 * reach + 1));
        sum = sum + at(i + reach + 1) + at(i - reach) * -1.0f;
    }
}

} // namespace

Canvas::Canvas(int scale)
    : scale_{scale}, columns_{finished_width * scale}, rows_{finished_height * scale},
      fine_{static_cast<float>(columns_) / picture_width},
      pixels_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_)) {
}

void Canvas::Stroke(float x0, float y0, float width0, float x1, float y1, float width1, Colour colour,
                    float strength, float soft) {
    const float reach = std::max(width0, width1) / 2 + soft + 1;
    const float dx = x1 - x0, dy = y1 - y0, squared = std::max(dx * dx + dy * dy, 1e-6f);
    Shape(
        std::min(x0, x1) - reach, std::min(y0, y1) - reach, std::max(x0, x1) + reach,
        std::max(y0, y1) + reach,
        [&](float x, float y) {
            const float t = Unit(((x - x0) * dx + (y - y0) * dy) / squared);
            const float away = std::hypot(x - x0 - t * dx, y - y0 - t * dy);
            return strength * Edge(Mix(width0, width1, t) / 2 - away, soft);
        },
        [&](float, float) { return colour; });
}

void Canvas::Curve(float x0, float y0, float x1, float y1, float x2, float y2, float width0, float width2,
                   Colour colour, float strength, float soft) {
    const float length = std::hypot(x1 - x0, y1 - y0) + std::hypot(x2 - x1, y2 - y1);
    const int pieces = std::clamp(static_cast<int>(length / 9), 2, 24);
    float x = x0, y = y0, width = width0;
    for (int i = 1; i <= pieces; ++i) {
        const float t = static_cast<float>(i) / static_cast<float>(pieces), s = 1 - t;
        const float to_x = s * s * x0 + 2 * s * t * x1 + t * t * x2,
                    to_y = s * s * y0 + 2 * s * t * y1 + t * t * y2;
        const float to_width = Mix(width0, width2, t);
        Stroke(x, y, width, to_x, to_y, to_width, colour, strength, soft);
        x = to_x, y = to_y, width = to_width;
    }
}

void Canvas::Disc(float x, float y, float radius, Colour colour, float strength, float soft) {
    const float reach = radius + soft + 1;
    Shape(
        x - reach, y - reach, x + reach, y + reach,
        [&](float px, float py) { return strength * Edge(radius - std::hypot(px - x, py - y), soft); },
        [&](float, float) { return colour; });
}

void Canvas::Petal(float x, float y, float angle, float length, float width, Colour root, Colour tip,
                   float strength, float soft) {
    const float c = std::cos(angle), s = std::sin(angle), reach = width / 2 + soft + 1;
    const float end_x = x + c * length, end_y = y + s * length;
    Shape(
        std::min(x, end_x) - reach, std::min(y, end_y) - reach, std::max(x, end_x) + reach,
        std::max(y, end_y) + reach,
        [&](float px, float py) {
            const float along = ((px - x) * c + (py - y) * s) / length;
            const float across = std::abs((py - y) * c - (px - x) * s);
            const float t = Unit(along), beyond = std::abs(along - t) * length;
            // Widest at two thirds, round at the tip.
            const float half = width / 2 * std::sqrt(t) * std::sqrt(Unit((1 - t) * 3)) * 1.2f;
            return strength * Edge(half - across - beyond, soft);
        },
        [&](float px, float py) { return Mix(root, tip, Unit(((px - x) * c + (py - y) * s) / length)); });
}

void Canvas::Glow(float x, float y, float radius, Colour light) {
    Each([&](float px, float py, Colour &pixel) {
        const float d = std::hypot(px - x, py - y) / radius;
        if (d < 6)
            pixel = pixel + light * (std::exp(-d * 1.6f) * Unit((6 - d) / 3));
    });
}

Colour Canvas::At(float x, float y) const {
    const float u = std::clamp(x * fine_ - 0.5f, 0.0f, static_cast<float>(columns_ - 1) - 0.01f);
    const float v = std::clamp(y * fine_ - 0.5f, 0.0f, static_cast<float>(rows_ - 1) - 0.01f);
    const auto column = static_cast<std::size_t>(u), row = static_cast<std::size_t>(v);
    const Colour *p = &pixels_[row * static_cast<std::size_t>(columns_) + column];
    const float a = u - static_cast<float>(column), b = v - static_cast<float>(row);
    return Mix(Mix(p[0], p[1], a), Mix(p[columns_], p[columns_ + 1], a), b);
}

void Canvas::Bloom(float threshold, float radius, float strength) {
    constexpr float step = 4;
    constexpr int columns = static_cast<int>(picture_width / step),
                  rows = static_cast<int>(picture_height / step);
    std::vector<Colour> bright;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            Colour sum;
            for (int i = 0; i < 16; ++i)
                sum = sum + At((static_cast<float>(column) + static_cast<float>(i % 4) / 4 + 0.125f) * step,
                               (static_cast<float>(row) + static_cast<float>(i / 4) / 4 + 0.125f) * step);
            sum = sum * (1.0f / 16);
            const float light = std::max({sum.r, sum.g, sum.b, 1e-6f});
            bright.push_back(sum * (std::max(light - threshold, 0.0f) / light));
        }
    std::vector<Colour> copy;
    const int reach = std::max(static_cast<int>(radius / step), 1);
    for (int pass = 0; pass < 3; ++pass) {
        for (int row = 0; row < rows; ++row)
            Blur_Line(&bright[static_cast<std::size_t>(row * columns)], 1, columns, reach, copy);
        for (int column = 0; column < columns; ++column)
            Blur_Line(&bright[static_cast<std::size_t>(column)], static_cast<std::size_t>(columns), rows,
                      reach, copy);
    }
    const Coarse<Colour> light(step, [&](float x, float y) {
        const int column = std::min(static_cast<int>(x / step), columns - 1),
                  row = std::min(static_cast<int>(y / step), rows - 1);
        return bright[static_cast<std::size_t>(row * columns + column)];
    });
    Each([&](float x, float y, Colour &pixel) {
        pixel = pixel + light.At(x - step / 2, y - step / 2) * strength;
    });
}

void Canvas::Mirror() {
    for (int row = 0; row < rows_; ++row)
        std::reverse(&Pixel(0, row), &Pixel(0, row) + columns_);
}

bool Canvas::Write(const char *path, float grain) const {
    std::FILE *file = std::fopen(path, "wb");
    if (!file)
        return false;
    const int width = columns_ / scale_, height = rows_ / scale_;
    std::fprintf(file, "P6\n%d %d\n255\n", width, height);
    Random random(2001);
    std::vector<unsigned char> line;
    for (int y = 0; y < height; ++y) {
        line.clear();
        for (int x = 0; x < width; ++x) {
            // Tone before averaging the samples, or bright edges would lose their smoothness.
            float sum[3] = {0, 0, 0};
            for (int i = 0; i < scale_ * scale_; ++i) {
                const Colour &c = pixels_[static_cast<std::size_t>(y * scale_ + i / scale_) *
                                              static_cast<std::size_t>(columns_) +
                                          static_cast<std::size_t>(x * scale_ + i % scale_)];
                sum[0] += Screen_Value(c.r), sum[1] += Screen_Value(c.g), sum[2] += Screen_Value(c.b);
            }
            const float noise = (random.Next() + random.Next() - 1) * grain;
            for (const float value : sum) {
                const float mean = value / static_cast<float>(scale_ * scale_);
                line.push_back(
                    static_cast<unsigned char>(std::clamp(mean + noise + random.Next(), 0.0f, 255.0f)));
            }
        }
        if (std::fwrite(line.data(), 1, line.size(), file) != line.size()) {
            std::fclose(file);
            return false;
        }
    }
    return std::fclose(file) == 0;
}
