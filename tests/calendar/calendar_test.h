// The fixture of the calendar window's tests.
#pragma once

#include "calendar/main_frm.h"
#include "tests/fakes/form_test.h"

#include <memory>
#include <string>
#include <vector>

class Calendar_Test : public Form_Test {
protected:
    static std::string &Data_File() { return Fakes().files["C:\\Vellatro\\calendar.dat"]; }

    static std::string &Stored(const std::string &key) {
        return Fakes().registry["Software\\Vellatro\\Settings\\" + key];
    }

    /// Replaces the data file with these records.
    static void Events(const std::vector<std::string> &records) {
        Data_File().clear();
        for (const std::string &record : records)
            Data_File() += "\"" + record + "\"\r\n";
    }

    /// Returns the records of the data file without quotes, each followed by "|".
    static std::string Records() {
        std::string records;
        for (const char c : Data_File())
            records += c == '"' || c == '\r' ? "" : c == '\n' ? "|" : std::string(1, c);
        return records;
    }

    static std::string In_Pack(const std::string &pack, const std::string &file) {
        return "C:\\Vellatro\\" + pack + "\\" + file;
    }
    /// Creates a pack. Month m has the details 0-m-1, unless `more_details` replaces them, and a picture m
    /// pixels wide.
    static void Make_Pack(const std::string &pack, const std::string &more_details = {}) {
        std::string &ini = Fakes().files[In_Pack(pack, "settings.ini")] = "";
        for (int month = 1; month <= 12; ++month) {
            const std::string path = In_Pack(pack, std::to_string(month) + ".jpg");
            Fakes().files[path] = "a picture";
            Fakes().pictures[path] = {month, 1, std::make_shared<std::vector<std::uint8_t>>(month * 3)};
            ini += std::to_string(month) + "=0-" + std::to_string(month) + "-1\r\n";
        }
        ini += more_details;
    }

    void Start() { ASSERT_TRUE(form.Form_Load()); }

    void Show_Month(std::int16_t month, std::int16_t year) {
        form.Cur_Month = month;
        form.Cur_Year = year;
        form.Redraw();
    }

    // The box of a day of the shown month: its index, its label, and its event text.
    int Index_Of(int day) { return Main_Frm::Start_Box(form.Cur_Month, form.Cur_Year) + day - 1; }
    Label &Box_Of(int day) { return form.Box_Lbl[Index_Of(day)]; }
    std::string Text_Of(int day) { return form.Box_Caption_Lbl[Index_Of(day)].Caption(); }

    /// Returns the bounds of all visible controls.
    std::vector<Rect> Seen() const {
        std::vector<Rect> seen;
        for (const platform::Control_State *control : form.Model().controls)
            if (control->visible)
                seen.push_back(control->bounds);
        return seen;
    }

    Main_Frm form;
};
