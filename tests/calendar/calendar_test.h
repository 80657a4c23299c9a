// The fixture of the calendar window's tests.
#pragma once

#include "calendar/main_frm.h"
#include "tests/fakes/form_test.h"

#include <string>
#include <vector>

class Calendar_Test : public Form_Test {
protected:
    static std::string &Data_File() { return Fakes().files["C:\\Vellatro\\calendar.dat"]; }

    static std::string &Stored(const std::string &key) {
        return Fakes().registry["Software\\Vellatro\\Settings\\" + key];
    }

    /// Makes the data file hold these records.
    static void Events(const std::vector<std::string> &records) {
        Data_File().clear();
        for (const std::string &record : records)
            Data_File() += "\"" + record + "\"\r\n";
    }

    void Start() { ASSERT_TRUE(form.Form_Load()); }

    void Show_Month(std::int16_t month, std::int16_t year) {
        form.Cur_Month = month;
        form.Cur_Year = year;
        form.Redraw();
    }

    /// Of a day of the shown month: its box, and the event text in it.
    int Index_Of(int day) { return Main_Frm::Start_Box(form.Cur_Month, form.Cur_Year) + day - 1; }
    Label &Box_Of(int day) { return form.Box_Lbl[Index_Of(day)]; }
    std::string Text_Of(int day) { return form.Box_Caption_Lbl[Index_Of(day)].Caption(); }

    /// The places of all visible controls.
    std::vector<Rect> Seen() const {
        std::vector<Rect> seen;
        for (const platform::Control_State *control : form.Model().controls)
            if (control->visible)
                seen.push_back(control->bounds);
        return seen;
    }

    Main_Frm form;
};
