// Controls of one kind that share a name and differ by an index: Box_Lbl(0), Box_Lbl(1) ...
#pragma once

#include "toolkit/control.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

/// Returns the name of one control of an array, such as "Box_Lbl(1)".
std::string Element_Name(std::string_view array, int index);

/// Throws an Error that names the array of the control `first` and the missing `index`.
[[noreturn]] void Throw_No_Element(const Control &first, int index);

/// An array of `Count` controls, registered with their form in index order.
template <typename Control_Type, std::size_t Count>
class Control_Array {
    using Storage = std::array<std::unique_ptr<Control_Type>, Count>;

public:
    /// Iterates over the controls, not over their pointers.
    class Iterator {
    public:
        explicit Iterator(typename Storage::const_iterator at) : at_(at) {}
        Control_Type &operator*() const { return **at_; }
        Iterator &operator++() {
            ++at_;
            return *this;
        }
        bool operator==(const Iterator &) const = default;

    private:
        typename Storage::const_iterator at_;
    };

    Control_Array(Container in, std::string_view name) {
        for (int index = 0; index < static_cast<int>(Count); ++index)
            Add(in, name, index);
    }
    /// Also fills `labels`, a default-constructed array. Each label directly precedes the control that it
    /// names, because assistive technology looks for the name there.
    Control_Array(Container in, std::string_view name, Control_Array<Label, Count> &labels,
                  std::string_view labels_name) {
        for (int index = 0; index < static_cast<int>(Count); ++index) {
            labels.Add(in, labels_name, index);
            Add(in, name, index);
        }
    }
    Control_Array() = default;

    /// Returns the control at `index`. Throws Error for an index outside 0 to Count - 1.
    Control_Type &operator[](int index) const {
        if (index < 0 || index >= static_cast<int>(Count))
            Throw_No_Element(*controls_.front(), index);
        return *controls_[static_cast<std::size_t>(index)];
    }

    Iterator begin() const { return Iterator(controls_.begin()); }
    Iterator end() const { return Iterator(controls_.end()); }

private:
    template <typename Other_Type, std::size_t Other_Count>
    friend class Control_Array;
    void Add(Container in, std::string_view name, int index) {
        controls_[static_cast<std::size_t>(index)] =
            std::make_unique<Control_Type>(in, Element_Name(name, index).c_str());
    }

    Storage controls_;
};
