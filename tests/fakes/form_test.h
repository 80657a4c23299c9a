// The fixture of tests with forms: it also resets the desktop, and fails if an expected menu never appears.
#pragma once

#include "tests/fakes/fake_forms.h"
#include "tests/fakes/fake_test.h"

inline bool Inside(const Rect &inner, const Rect &outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.Right() <= outer.Right() &&
           inner.Bottom() <= outer.Bottom();
}

class Form_Test : public Fake_Test {
protected:
    Form_Test() { Reset_Desktop(); }
    ~Form_Test() override { EXPECT_TRUE(Desktop().expected_menus.empty()) << "an expected menu never came"; }
};
