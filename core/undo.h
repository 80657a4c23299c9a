// The way back from changes of one file: the newest of them, as what each has changed. Who makes them, and
// what is in the file, is not here.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

/// Remembers of each change the bytes that went and where they stood, never the whole file, unless all of it
/// changed. The oldest change is forgotten for one too many.
class Undo_Log {
    using File_Bytes = std::optional<std::string>; ///< nothing: there is no file

public:
    static constexpr std::size_t most_steps = 20;

    /// For the file `path`, which may not be there.
    explicit Undo_Log(std::string path);

    /// Watches the file for its own lifetime: whatever is written meanwhile, also in several writes, is one
    /// change, and none where the file is the same in the end. A change inside another one belongs to that.
    /// One that cannot be remembered, because the file cannot be read or for want of memory, has no way back.
    class Change {
    public:
        Change(Undo_Log &log, std::string name);
        ~Change();
        Change(const Change &) = delete;
        Change &operator=(const Change &) = delete;

    private:
        Undo_Log &log_;
        std::string name_;
        bool has_before_ = false; ///< before_ is the file
        File_Bytes before_;
    };

    /// The name of the change that Undo takes back; empty when there is none, and during a change.
    std::string_view Name() const;

    /// Makes the file what it was before the newest change, which is forgotten then; where there was no file,
    /// there is none again. False when the file is not what that change left, and of course when Name() is
    /// empty: then nothing happens. Throws platform::File_Error, and then nothing has happened either.
    bool Undo();

private:
    struct Step {
        std::string name;
        std::string removed;         ///< what stood where the files differ
        std::size_t head = 0;        ///< bytes before that, the same in both
        std::size_t tail = 0;        ///< bytes behind it, likewise
        std::size_t size = 0;        ///< of the file after the change
        std::size_t hash = 0;        ///< of its bytes
        bool existed_before = false; ///< the file, before the change
        bool existed_after = true;   ///< and after it
    };

    File_Bytes Read() const;
    void Add(std::string name, const File_Bytes &before, const File_Bytes &after);

    std::string path_;
    std::deque<Step> steps_;
    bool changing_ = false;
};
