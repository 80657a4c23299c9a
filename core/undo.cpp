#include "core/undo.h"

#include "base/joined.h"
#include "platform/files.h"

#include <algorithm>
#include <exception>
#include <functional>
#include <utility>

Undo_Log::Undo_Log(std::string path) : path_(std::move(path)) {
}

Undo_Log::Change::Change(Undo_Log &log, std::string name) : log_(log), name_(std::move(name)) {
    if (log_.changing_)
        return;
    try {
        before_ = log_.Read();
        has_before_ = true;
    } catch (const std::exception &) { // this change cannot be undone
    }
    log_.changing_ = has_before_;
}

Undo_Log::Change::~Change() {
    if (!has_before_)
        return;
    log_.changing_ = false;
    try {
        log_.Add(std::move(name_), before_, log_.Read());
    } catch (const std::exception &) { // the change stands and cannot be undone
    }
}

Undo_Log::File_Bytes Undo_Log::Read() const {
    if (!platform::Path_Exists(path_))
        return {};
    return platform::Read_File(path_);
}

void Undo_Log::Add(std::string name, const File_Bytes &before, const File_Bytes &after) {
    if (before == after)
        return;
    const std::string_view was = before ? std::string_view(*before) : std::string_view();
    const std::string_view is = after ? std::string_view(*after) : std::string_view();
    Step step;
    step.name = std::move(name);
    step.head = static_cast<std::size_t>(std::mismatch(was.begin(), was.end(), is.begin(), is.end()).first -
                                         was.begin());
    const std::string_view was_rest = was.substr(step.head);
    const std::string_view is_rest = is.substr(step.head);
    step.tail = static_cast<std::size_t>(
        std::mismatch(was_rest.rbegin(), was_rest.rend(), is_rest.rbegin(), is_rest.rend()).first -
        was_rest.rbegin());
    step.removed = was_rest.substr(0, was_rest.size() - step.tail);
    step.size = is.size();
    step.hash = std::hash<std::string_view>()(is);
    step.existed_before = before.has_value();
    step.existed_after = after.has_value();
    steps_.push_back(std::move(step));
    if (steps_.size() > most_steps)
        steps_.pop_front();
}

std::string_view Undo_Log::Name() const {
    return changing_ || steps_.empty() ? std::string_view() : steps_.back().name;
}

bool Undo_Log::Undo() {
    if (Name().empty())
        return false;
    const Step &step = steps_.back();
    const File_Bytes file = Read();
    const std::string_view bytes = file ? std::string_view(*file) : std::string_view();
    if (file.has_value() != step.existed_after || bytes.size() != step.size ||
        std::hash<std::string_view>()(bytes) != step.hash)
        return false;
    if (step.existed_before)
        platform::Replace_File(path_, Joined({bytes.substr(0, step.head), step.removed,
                                              bytes.substr(bytes.size() - step.tail)}));
    else
        platform::Delete_File(path_);
    steps_.pop_back();
    return true;
}
