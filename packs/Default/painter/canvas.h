// The canvas: a picture of floating-point light, with soft-edged shapes, blur and bloom, that is written to a
// PPM file. All lengths and coordinates are units from the top left. A picture is 1920 by 1080 units, so a
// unit is larger than a pixel of the finished picture.
#pragma once

#include "light.h"

#include <cstdio>

constexpr float picture_width = 1920, picture_height = 1080;
constexpr int finished_width = 2560, finished_height = 1440; ///< in pixels

class Canvas {
public:
    /// `scale` is the number of canvas pixels for each pixel of the finished picture, in both directions; at
    /// least 1.
    explicit Canvas(int scale);

    /// Calls paint(x, y, colour) for every pixel between the two lines, which may change the colour.
    template <class Paint>
    void Each(Paint paint, float top = 0, float bottom = picture_height) {
        for (int row = Row(top); row < Row(bottom); ++row)
            for (int column = 0; column < columns_; ++column)
                paint(Middle(column), Middle(row), Pixel(column, row));
    }

    /// Fills the area below the line y = ridge(x) with shade(x, y, y - ridge(x)).
    template <class Ridge, class Shade>
    void Below(Ridge ridge, Shade shade, float bottom = picture_height) {
        std::vector<float> line(static_cast<std::size_t>(columns_));
        for (int column = 0; column < columns_; ++column)
            line[static_cast<std::size_t>(column)] = ridge(Middle(column));
        const float highest = *std::min_element(line.begin(), line.end());
        for (int row = Row(highest - 1); row < Row(bottom); ++row)
            for (int column = 0; column < columns_; ++column) {
                const float y = Middle(row), depth = y - line[static_cast<std::size_t>(column)];
                const float cover = Unit(depth * fine_ + 0.5f);
                if (cover <= 0)
                    continue;
                Colour &pixel = Pixel(column, row);
                pixel = Mix(pixel, shade(Middle(column), y, std::max(depth, 0.0f)), cover);
            }
    }

    /// Blends colour(x, y) into the box with the weight cover(x, y).
    template <class Cover, class Shade>
    void Shape(float left, float top, float right, float bottom, Cover cover, Shade shade) {
        for (int row = Row(top); row < Row(bottom + 1); ++row)
            for (int column = Column(left); column < Column(right + 1); ++column) {
                const float weight = cover(Middle(column), Middle(row));
                if (weight <= 0)
                    continue;
                Colour &pixel = Pixel(column, row);
                pixel = Mix(pixel, shade(Middle(column), Middle(row)), std::min(weight, 1.0f));
            }
    }

    /// Returns the weight of a pixel `inside` units within an edge that is blurred over `soft` units.
    float Edge(float inside, float soft = 0) const { return Unit(inside / (1 / fine_ + soft) + 0.5f); }

    /// Draws a round-ended line of changing width.
    void Stroke(float x0, float y0, float width0, float x1, float y1, float width1, Colour colour,
                float strength = 1, float soft = 0);
    /// Draws a curve from (x0, y0) to (x2, y2), pulled towards (x1, y1).
    void Curve(float x0, float y0, float x1, float y1, float x2, float y2, float width0, float width2,
               Colour colour, float strength = 1, float soft = 0);
    void Disc(float x, float y, float radius, Colour colour, float strength = 1, float soft = 0);
    /// Draws a petal or leaf that grows from (x, y) towards `angle`. Its colour changes from `root` to `tip`.
    void Petal(float x, float y, float angle, float length, float width, Colour root, Colour tip,
               float strength = 1, float soft = 0);
    /// Adds light around a point. It falls to almost nothing at three radii.
    void Glow(float x, float y, float radius, Colour light);

    /// Returns the colour at a point, interpolated between pixels. A point outside gets the colour of the
    /// nearest edge.
    Colour At(float x, float y) const;

    /// Swaps left and right.
    void Mirror();

    /// Makes areas brighter than `threshold` shine over their surroundings.
    void Bloom(float threshold, float radius, float strength);

    /// Tones bright light down, adds grain against banding, and writes the picture. Returns false if the file
    /// cannot be written.
    bool Write(const char *path, float grain) const;

private:
    float Middle(int index) const { return (static_cast<float>(index) + 0.5f) / fine_; }
    // Return the first row or column whose middle is not before the position.
    int Row(float y) const { return std::clamp(static_cast<int>(std::ceil(y * fine_ - 0.5f)), 0, rows_); }
    int Column(float x) const {
        return std::clamp(static_cast<int>(std::ceil(x * fine_ - 0.5f)), 0, columns_);
    }
    Colour &Pixel(int column, int row) {
        return pixels_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                       static_cast<std::size_t>(column)];
    }

    int scale_, columns_, rows_;
    float fine_; ///< canvas pixels per unit
    std::vector<Colour> pixels_;
};

/// The values of a slow function f(x, y), computed every `step` units and interpolated between them.
template <class Value>
class Coarse {
public:
    template <class F>
    Coarse(float step, F f) : step_{step}, columns_{static_cast<int>(picture_width / step) + 3} {
        const int rows = static_cast<int>(picture_height / step) + 3;
        for (int row = 0; row < rows; ++row)
            for (int column = 0; column < columns_; ++column)
                values_.push_back(f(static_cast<float>(column) * step, static_cast<float>(row) * step));
    }
    Value At(float x, float y) const {
        const float u = std::clamp(x, 0.0f, picture_width) / step_,
                    v = std::clamp(y, 0.0f, picture_height) / step_;
        const int column = static_cast<int>(u), row = static_cast<int>(v);
        const float s = u - static_cast<float>(column), t = v - static_cast<float>(row);
        return Mix(Mix(Node(column, row), Node(column + 1, row), s),
                   Mix(Node(column, row + 1), Node(column + 1, row + 1), s), t);
    }

private:
    Value Node(int column, int row) const {
        return values_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                       static_cast<std::size_t>(column)];
    }
    float step_;
    int columns_;
    std::vector<Value> values_;
};
