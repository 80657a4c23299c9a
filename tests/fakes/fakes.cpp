// The faked system as a whole: its one instance, and the way of its failures. The platform's procedures are
// in files per topic.
#include "tests/fakes/fakes.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {

Failure_Hook failure_hook = nullptr;

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

bool Name_Less::operator()(std::string_view a, std::string_view b) const {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return Lower(x) < Lower(y); });
}

Fake_System &Fakes() {
    static Fake_System system;
    return system;
}

void Reset_Fakes() {
    Fakes() = Fake_System{};
}

void Set_Failure_Hook(Failure_Hook hook) {
    failure_hook = hook;
}

void Fail(const std::string &message) {
    if (failure_hook != nullptr) {
        failure_hook(message);
        return;
    }
    std::fprintf(stderr, "%s\n", message.c_str());
    std::abort();
}

void Fake_System::Expect_Box(std::string text, platform::Box_Answer answer, std::function<void()> meanwhile) {
    expected_boxes.push_back({std::move(text), answer, std::move(meanwhile)});
}
