// The fixture of tests that run on the fakes. Each test starts with a new system and default settings, and
// fails if an expected message box or file dialog never appears.
#pragma once

#include "core/settings.h"
#include "tests/fakes/fakes.h"

#include <gtest/gtest.h>

class Fake_Test : public ::testing::Test {
protected:
    Fake_Test() {
        Reset_Fakes();
        Fakes().on_failure = [](const std::string &message) { ADD_FAILURE() << message; };
        Cur_Settings = Settings{};
    }

    // A derived fixture's TearDown could skip a TearDown here, but not the destructor.
    ~Fake_Test() override {
        for (const Expected_Box &box : Fakes().expected_boxes)
            ADD_FAILURE() << "this message box never came: " << box.text;
        for (const Expected_Dialog &dialog : Fakes().expected_dialogs)
            ADD_FAILURE() << "this file dialog never came: " << dialog.title;
    }
};
