// Controls of one kind that share a name and are told apart by an index: Box_Lbl(0), Box_Lbl(1) ...
#pragma once

#include "toolkit/control.h"

#include <cstddef>
#include <deque>
#include <stdexcept>
#include <string>
#include <string_view>

/// `Count` controls, registered with their form in index order.
template <typename Control_Type, std::size_t Count>
class Control_Array {
public:
    Control_Array(Form &form, std::string_view name) : name_(name) {
        while (controls_.size() < Count)
            Add(form);
    }
    /// Of labels that another array registers, each directly before the control that it names, which is where
    /// assistive technology looks for a name.
    explicit Control_Array(std::string_view name) : name_(name) {}
    Control_Array(Form &form, std::string_view name, Control_Array<Label, Count> &labels) : name_(name) {
        while (controls_.size() < Count) {
            labels.Add(form);
            Add(form);
        }
    }
    void Add(Form &form) { controls_.emplace_back(form, Element_Name(static_cast<int>(controls_.size()))); }

    /// Throws std::out_of_range for an index outside 0 to Count - 1.
    Control_Type &operator[](int index) {
        if (index < 0 || index >= static_cast<int>(Count))
            throw std::out_of_range("There is no " + Element_Name(index) + ".");
        return controls_[static_cast<std::size_t>(index)];
    }

    auto begin() { return controls_.begin(); }
    auto end() { return controls_.end(); }
    auto begin() const { return controls_.begin(); }
    auto end() const { return controls_.end(); }

private:
    std::string Element_Name(int index) const { return name_ + "(" + std::to_string(index) + ")"; }

    std::string name_;
    std::deque<Control_Type> controls_; ///< its elements stay in their places
};
