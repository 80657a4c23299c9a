// Controls of one kind that share a name and are told apart by an index: Box_Lbl(0), Box_Lbl(1) ...
#pragma once

#include "toolkit/control.h"

#include <array>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>

/// `Count` controls, registered with their form in index order.
template <typename Control_Type, std::size_t Count>
class Control_Array {
public:
    Control_Array(Form &form, const std::string &name)
        : controls_(Make(form, name, std::make_index_sequence<Count>{})), name_(name) {}

    /// Throws std::out_of_range for an index outside 0 to Count - 1.
    Control_Type &operator[](int index) {
        if (index < 0 || index >= static_cast<int>(Count))
            throw std::out_of_range("There is no " + Element_Name(name_, index) + ".");
        return controls_[static_cast<std::size_t>(index)];
    }

    auto begin() { return controls_.begin(); }
    auto end() { return controls_.end(); }
    auto begin() const { return controls_.begin(); }
    auto end() const { return controls_.end(); }

private:
    static std::string Element_Name(const std::string &name, int index) {
        return name + "(" + std::to_string(index) + ")";
    }

    template <std::size_t... Indexes>
    static std::array<Control_Type, Count> Make(Form &form, const std::string &name,
                                                std::index_sequence<Indexes...>) {
        // Braces evaluate from left to right, and each control is made in its place.
        return {{Control_Type(form, Element_Name(name, static_cast<int>(Indexes)))...}};
    }

    std::array<Control_Type, Count> controls_;
    std::string name_;
};
