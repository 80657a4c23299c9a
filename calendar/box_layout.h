// The measures of the two box styles: where boxes, headers and title are on the calendar, in pixels, and the
// look that the styles give to labels. Who else shows boxes as the calendar does takes both from here; the
// fitting of event texts is not here.
#pragma once

#include "platform/drawing.h"
#include "toolkit/control.h"

#include <cstdint>

/// Background behind the title where the desktop draws its labels without one.
constexpr Colour dark_grey = 4934475;

/// Rectangles are whole pixels on the calendar, so that all columns are equally wide at any dots per inch.
class Box_Layout {
public:
    static constexpr int columns = 7;
    static constexpr int rows = 6;
    static constexpr platform::Font title_font{105, true};
    static constexpr platform::Font header_font{85, false};
    static constexpr platform::Font number_font{90, false};
    static constexpr platform::Font text_font{80, false};

    /// 0 is "Thin Box", every other number "Square Box". Measured with the screen's fonts and dots per inch
    /// of now.
    explicit Box_Layout(std::int16_t style);

    Rect Previous_Arrow() const { return {0, 0, title_, title_}; }
    Rect Month() const { return {title_ + gap_, 0, Full_Width() - 2 * (title_ + gap_), title_}; }
    Rect Next_Arrow() const { return {Full_Width() - title_, 0, title_, title_}; }
    Rect Header(int column) const;
    Rect Box(int index) const;
    /// The place of the event text in a box.
    Rect Text(int index) const;
    /// Of the whole calendar.
    Size Full_Size() const { return {Full_Width(), Box(columns * rows - 1).Bottom()}; }
    int Gap() const { return gap_; }

private:
    int Full_Width() const { return columns * box_.width + (columns - 1) * gap_; }

    bool one_line_;
    int gap_;
    Size box_;
    int title_;  ///< height of the title, also the width of its arrows
    int header_; ///< height of the weekday headers
    int number_bottom_;
};

/// Height of a line of text in whole pixels, at least one.
int Line_Pixels(const platform::Font &font);

// The looks, without place, colours and caption.
void Style_Heading(Label &label, const platform::Font &font);
/// Leaves the caption bold that is so.
void Style_Number(Label &label);
void Style_Text(Label &label);
/// Gives a box the look of today's.
void Style_Today(Label &label, Colour colour);
/// Takes it away; the background stays.
void Clear_Today_Style(Label &label);

/// A colour that stands out from `colour` and is of its hue.
Colour Strong_Shade(Colour colour);
