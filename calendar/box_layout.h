// The measures of the two box styles: the places of boxes, headers and title on the calendar, in pixels, and
// the look of their labels. Every window that shows day boxes uses them. box_styles.cpp fits the event texts.
#pragma once

#include "platform/drawing.h"
#include "toolkit/control.h"

#include <cstdint>

/// The background of the title if the desktop draws its icon labels without a background.
constexpr Colour dark_grey = 4934475;

/// The layout of one box style. Rectangles are whole pixels on the calendar, so all columns are equally wide
/// at any DPI.
class Box_Layout {
public:
    static constexpr int columns = 7;
    static constexpr int rows = 6;
    static constexpr platform::Font title_font{105, true};
    static constexpr platform::Font header_font{85, false};
    static constexpr platform::Font number_font{90, false};
    static constexpr platform::Font text_font{80, false};

    /// Computes the layout of a style with the current fonts and DPI. Style 0 is "Thin Box", every other
    /// number "Square Box".
    explicit Box_Layout(std::int16_t style);

    Rect Previous_Arrow() const { return {0, 0, title_, title_}; }
    Rect Month() const { return {title_ + gap_, 0, Full_Width() - 2 * (title_ + gap_), title_}; }
    Rect Next_Arrow() const { return {Full_Width() - title_, 0, title_, title_}; }
    Rect Header(int column) const;
    Rect Box(int index) const;
    /// Returns the rectangle of the event text in a box.
    Rect Text(int index) const;
    /// Returns the size of the whole calendar.
    Size Full_Size() const { return {Full_Width(), Box(columns * rows - 1).Bottom()}; }
    int Gap() const { return gap_; }

private:
    int Full_Width() const { return columns * box_.width + (columns - 1) * gap_; }

    bool one_line_;
    int gap_;
    Size box_;
    int title_;  ///< height of the title; also the width of its arrows
    int header_; ///< height of the weekday headers
    int number_bottom_;
};

/// Returns the height of a line of text in whole pixels, at least one.
int Line_Pixels(const platform::Font &font);

// Each sets the look of a label, but not its place or caption. Only the two for today's box set colours.
void Style_Heading(Label &label, const platform::Font &font);
/// Keeps a bold caption bold.
void Style_Number(Label &label);
void Style_Text(Label &label);
/// Gives a label the look of today's box.
void Style_Today(Label &label, Colour colour);
/// Removes the look of today's box, except for the background.
void Clear_Today_Style(Label &label);

/// Returns a darker or lighter colour of the same hue that stands out from `colour`.
Colour Strong_Shade(Colour colour);
