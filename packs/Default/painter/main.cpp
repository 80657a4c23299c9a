// Paints one month's picture of the theme pack: paint MONTH SCALE OUT.ppm. SCALE 2 is the finished quality, 1
// a quick preview.
#include "scenery.h"

#include <cstdlib>

int main(int argc, char **argv) {
    constexpr void (*months[])(Canvas &) = {January, February, March,     April,   May,      June,
                                            July,    August,   September, October, November, December};
    const int month = argc == 4 ? std::atoi(argv[1]) : 0, scale = argc == 4 ? std::atoi(argv[2]) : 0;
    if (month < 1 || month > 12 || scale < 1 || scale > 4) {
        std::fprintf(stderr, "usage: paint MONTH SCALE OUT.ppm\n");
        return 2;
    }
    Canvas canvas(scale);
    months[month - 1](canvas);
    if (!canvas.Write(argv[3], 1.2f)) {
        std::perror(argv[3]);
        return 1;
    }
    return 0;
}
