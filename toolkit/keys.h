// The virtual key codes that the program uses by name.
#pragma once

#include "base/geometry.h"

enum Key : int {
    Key_Return = 13,
    Key_Escape = 27,
    Key_Page_Up = 33,
    Key_Page_Down = 34,
    Key_Home = 36,
    Key_Left = 37,
    Key_Up = 38,
    Key_Right = 39,
    Key_Down = 40,
    Key_Delete = 46,
    Key_M = 77,
    Key_Y = 89,
    Key_Z = 90,
    Key_Menu = 93,
    Key_F1 = 112,
    Key_F2 = 113,
    Key_F3 = 114,
    Key_F4 = 115,
    Key_F5 = 116,
    Key_F8 = 119,
    Key_F9 = 120,
    Key_F10 = 121,
    Key_F12 = 123,
};

/// Returns the direction of an arrow key, with right and down positive, or {0, 0} for any other key.
constexpr Point Arrow_Step(int key) {
    return {(key == Key_Right) - (key == Key_Left), (key == Key_Down) - (key == Key_Up)};
}
