// The "About" page of the settings dialog: the program's name and version, and the link to its web page.
#pragma once

#include "settings/page.h"

class About_Page final : public Page {
public:
    explicit About_Page(Frame &frame);
    void Lay_Out() override;

    /// Opens the author's page in the user's browser. Failures are silent.
    static void gotoweb();

    Picture_Box Logo_Pic{frame_, "Logo_Pic"};
    Label Name_Lbl{frame_, "Name_Lbl", "Vellatro"};
    Label Version_Lbl{frame_, "Version_Lbl", "v0.3b"};
    Label Designed_Lbl{frame_, "Designed_Lbl", "Designed for Win 98 and 2k."};
    Picture_Box Link_Lbl{frame_, "Link_Lbl"}; ///< a text that works as a link, also by keyboard
};
