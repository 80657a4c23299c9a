// The page "About" of the settings dialog: what the program is called, and the way to its page in the web.
#pragma once

#include "settings/page.h"

class About_Page {
public:
    [[gnu::noinline]] About_Page(Form &dialog, Frame &frame);
    /// Places the controls, also after a change of the dots per inch.
    void Lay_Out();

    /// Opens the author's page in the user's browser. A failure is not told.
    static void gotoweb();

    Picture_Box Logo_Pic;
    Label Name_Lbl;
    Label Version_Lbl;
    Label Designed_Lbl;
    Picture_Box Link_Lbl; ///< a text that can be clicked, also by the keyboard

private:
    void Paint_Logo(platform::Canvas &canvas) const;
};
