// An undo log for one file of any content.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

/// Remembers for each change only the bytes it replaced and their position. Keeps the last `most_steps`
/// changes.
class Undo_Log {
    using File_Bytes = std::optional<std::string>; ///< nullopt: there is no file

public:
    static constexpr std::size_t most_steps = 20;

    /// Creates the log of the file `path`, which need not exist.
    explicit Undo_Log(std::string path);

    /// Records one change: the difference that its lifetime makes to the file, in any number of writes. If
    /// the file is the same at the end, nothing is recorded. A change inside another is part of the outer
    /// change. If the file cannot be read or memory runs out, the change cannot be undone.
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

    /// Returns the name of the change that Undo would revert; empty if there is none, and during a change.
    std::string_view Name() const;

    /// Restores the file to its state before the newest change and forgets that change. If there was no file,
    /// deletes it. Returns false, leaving the file alone, if Name() is empty or the file is not as that
    /// change left it. Throws platform::File_Error; the file is unchanged then.
    bool Undo();

private:
    struct Step {
        std::string name;
        std::string removed;         ///< bytes before the change where the files differ
        std::size_t head = 0;        ///< number of equal bytes before those
        std::size_t tail = 0;        ///< number of equal bytes after those
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
