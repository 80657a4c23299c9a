#include "toolkit/control_array.h"

#include "base/error.h"
#include "base/joined.h"

std::string Element_Name(std::string_view array, int index) {
    return Joined({array, "(", std::to_string(index), ")"});
}

void Throw_No_Element(const Control &first, int index) {
    const std::string_view name = first.Name();
    throw Error(Joined({"There is no ", Element_Name(name.substr(0, name.find('(')), index), "."}));
}
