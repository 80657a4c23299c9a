// The fixture of the calendar window's tests.
#pragma once

#include "calendar/main_frm.h"
#include "tests/fakes/form_test.h"

#include <string>
#include <vector>

class Calendar_Test : public Form_Test {
protected:
    /// Makes the data file hold these records.
    static void Events(const std::vector<std::string> &records) {
        std::string bytes;
        for (const std::string &record : records)
            bytes += "\"" + record + "\"\r\n";
        Fakes().files["C:\\Vellatro\\calendar.dat"] = bytes;
    }

    void Start() { ASSERT_TRUE(form.Form_Load()); }

    void Show_Month(std::int16_t month, std::int16_t year) {
        form.Cur_Month = month;
        form.Cur_Year = year;
        form.Redraw();
    }

    /// The event text that a day of the shown month shows.
    std::string Text_Of(int day) {
        return form.Box_Caption_Lbl[Main_Frm::Start_Box(form.Cur_Month, form.Cur_Year) + day - 1].Caption();
    }

    Label &Box_Of(int day) {
        return form.Box_Lbl[Main_Frm::Start_Box(form.Cur_Month, form.Cur_Year) + day - 1];
    }

    Main_Frm form;
};
