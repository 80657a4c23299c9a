// The contract of platform/files.h: files are read and replaced as a whole or not at all.
#include "platform/files.h"
#include "tests/contract/contract.h"

namespace {

using Files_Contract = Contract_Test;
using Names = std::vector<std::string>;

TEST_F(Files_Contract, Keeps_Every_Byte_Under_Any_Name) {
    std::string all_bytes;
    for (int i = 0; i < 300'000; ++i)
        all_bytes += static_cast<char>(i + i / 4096);
    const std::string path = Scratch("calendar.dat");
    // Longer and shorter contents alternate: nothing of the old contents may remain.
    for (const std::string &bytes : {std::string("\n\x1A\r\n"), all_bytes, std::string("x"), std::string(),
                                     std::string("\xEF\xBB\xBF\0", 4)}) {
        platform::Replace_File(path, bytes);
        EXPECT_EQ(platform::Read_File(path), bytes);
    }
    for (const char *name : {"Notes 1.txt", "\xD0\x94\xD0\xB5\xD0\xBD\xD1\x8C.txt", "\xE6\x97\xA5.txt"}) {
        EXPECT_FALSE(platform::File_Exists(Scratch(name)));
        platform::Replace_File(Scratch(name), name);
        EXPECT_TRUE(platform::File_Exists(Scratch(name)));
        EXPECT_EQ(platform::Read_File(Scratch(name)), name);
    }
    platform::Replace_File(Scratch("NOTES 1.txt"), "new");
    EXPECT_EQ(platform::Read_File(Scratch("Notes 1.TXT")), "new");
    EXPECT_EQ(Names_Beside(path).size(), 4U);
    Age_File(Scratch("Notes 1.txt"));
    platform::Copy_File(Scratch("Notes 1.txt"), path); // the copy keeps the original's time
    EXPECT_EQ(platform::Read_File(path) + std::to_string(platform::Modified_Time(path).year), "new2000");
    platform::Replace_File(path, "newer");
    EXPECT_NE(platform::Modified_Time(path).year, 2000);
}

TEST_F(Files_Contract, What_Cannot_Be_Read_Or_Replaced_Stays_And_Is_Told) {
    const std::string missing = Scratch("missing.dat"), folder = Scratch("pack");
    EXPECT_FALSE(platform::Path_Exists(missing));
    try {
        platform::Read_File(missing);
        ADD_FAILURE() << "it was read";
    } catch (const platform::File_Error &error) {
        EXPECT_NE(std::string(error.what()).find(missing), std::string::npos) << error.what();
        EXPECT_GT(std::string(error.what()).size(), missing.size());
    }
    const std::string held = Scratch("held.dat"), kept = Scratch("kept.dat");
    for (const std::string &path : {held, kept})
        platform::Replace_File(path, "old");
    Lock_File(held);
    Protect_File(kept);
    Make_Folder(folder);
    for (const std::string &path : {held, kept, folder}) {
        EXPECT_THROW(platform::Replace_File(path, "new"), platform::File_Error);
        EXPECT_FALSE(platform::File_Exists(path + ".vellatro-new"));
        EXPECT_TRUE(platform::Path_Exists(path) && platform::File_Exists(path) == (path != folder));
    }
    for (const std::string &path : {held, folder})
        EXPECT_THROW(platform::Read_File(path), platform::File_Error);
    EXPECT_EQ(platform::Read_File(kept), "old");
}

TEST_F(Files_Contract, Folders_Are_Listed_And_Files_Deleted) {
    const std::string many_tongues = "z\u00E9ro \u0414\u65E5";
    for (const std::string &name : {std::string("pack"), many_tongues})
        Make_Folder(Scratch(name));
    for (const char *name : {"pack.bmp", "kept.bmp", "\xD0\xB4.bmp"})
        platform::Replace_File(Scratch(name), "x");
    Protect_File(Scratch("kept.bmp"));
    platform::Delete_File(Scratch("PACK.bmp"));
    for (const char *name : {"pack.bmp", "kept.bmp", "pack"})
        EXPECT_THROW(platform::Delete_File(Scratch(name)), platform::File_Error) << name;
    const std::string folder = Scratch("").substr(0, Scratch("").size() - 1);
    EXPECT_TRUE(std::ranges::is_permutation(platform::Names_In_Folder(folder, platform::Entry_Kind::Files),
                                            Names{"kept.bmp", "\xD0\xB4.bmp"}));
    EXPECT_TRUE(std::ranges::is_permutation(platform::Names_In_Folder(folder, platform::Entry_Kind::Folders),
                                            Names{"pack", many_tongues}));
    EXPECT_EQ(platform::Names_In_Folder(Scratch("none"), platform::Entry_Kind::Files), Names{});
    EXPECT_TRUE(platform::Folder_Exists(folder) && platform::Folder_Exists(Scratch("Pack")));
    EXPECT_FALSE(platform::Folder_Exists(Scratch("none")) || platform::Folder_Exists(Scratch("kept.bmp")));
}

} // namespace
