// Points, sizes and rectangles. The unit depends on the use: twips on forms and in settings, pixels on the
// screen.
#pragma once

struct Point {
    int x = 0;
    int y = 0;
    friend bool operator==(const Point &, const Point &) = default;
};

struct Size {
    int width = 0;
    int height = 0;
    friend bool operator==(const Size &, const Size &) = default;
};

struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    int Right() const { return left + width; }
    int Bottom() const { return top + height; }
    bool Empty() const { return width <= 0 || height <= 0; }
    bool Contains(Point p) const { return p.x >= left && p.x < Right() && p.y >= top && p.y < Bottom(); }
    bool Intersects(const Rect &r) const {
        return left < r.Right() && r.left < Right() && top < r.Bottom() && r.top < Bottom();
    }
    friend bool operator==(const Rect &, const Rect &) = default;
};
