// An undo log for one file of any content.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

/// Remembers only the bytes that each change replaced, and their position. Keeps the last `most_steps`
/// changes.
class Undo_Log {
    using File_Bytes = std::optional<std::string>; ///< nullopt: there is no file

public:
    static constexpr std::size_t most_steps = 20;

    /// Creates the log of the file `path`, which need not exist.
    explicit Undo_Log(std::string path);

    /// Records one change: the difference between the file's states at the start and the end of this object's
    /// life, after any number of writes. Records nothing if the states are equal. A change inside another is
    /// part of the outer change. If reading the file fails or memory runs out, Undo cannot revert the change.
    class Change {
    public:
        Change(Undo_Log &log, std::string name);
        ~Change();
        Change(const Change &) = delete;
        Change &operator=(const Change &) = delete;

    private:
        Undo_Log &log_;
        std::string name_;
        bool has_before_ = false; ///< before_ holds the file
        File_Bytes before_;
    };

    /// Returns the name of the change that Undo would revert, or "" if there is none or a change is running.
    std::string_view Name() const;

    /// Restores the file to its state before the newest change, or deletes a file that the change created.
    /// Forgets the change. Returns false and leaves the file alone if Name() is empty or the file is not as
    /// the change left it. On failure, throws platform::File_Error and leaves the file unchanged.
    bool Undo();

private:
    struct Step {
        std::string name;
        std::string removed;         ///< bytes that the change replaced
        std::size_t head = 0;        ///< number of equal bytes before them
        std::size_t tail = 0;        ///< number of equal bytes after them
        std::size_t size = 0;        ///< of the file after the change
        std::size_t hash = 0;        ///< of the file's bytes after the change
        bool existed_before = false; ///< the file existed before the change
        bool existed_after = true;   ///< the file existed after the change
    };

    File_Bytes Read() const;
    void Add(std::string name, const File_Bytes &before, const File_Bytes &after);

    std::string path_;
    std::deque<Step> steps_;
    bool changing_ = false;
};
