// What platform/files.h promises: whole files, replaced whole or not at all.
#include "platform/files.h"
#include "tests/contract/contract.h"

namespace {

class Files_Contract : public Contract_Test {};

using Names = std::vector<std::string>;

TEST_F(Files_Contract, Keeps_Every_Byte) {
    std::string all_bytes;
    for (int i = 0; i < 300'000; ++i)
        all_bytes += static_cast<char>(i + i / 4096);
    const std::string path = Scratch("calendar.dat");
    // Longer after shorter and shorter after longer: nothing of the old content may stay.
    for (const std::string &bytes : {std::string("\n\x1A\r\n"), all_bytes, std::string("x"), std::string(),
                                     std::string("\xEF\xBB\xBF\0", 4)}) {
        platform::Replace_File(path, bytes);
        EXPECT_EQ(platform::Read_File(path), bytes);
        EXPECT_TRUE(platform::File_Exists(path));
    }
    EXPECT_EQ(Names_Left(), Names{"calendar.dat"});
}

TEST_F(Files_Contract, Names_Are_Found_In_Any_Case_And_Language) {
    for (const char *name : {"Notes 1.txt", "\xD0\x94\xD0\xB5\xD0\xBD\xD1\x8C.txt", "\xE6\x97\xA5.txt"}) {
        EXPECT_FALSE(platform::File_Exists(Scratch(name)));
        platform::Replace_File(Scratch(name), name);
        EXPECT_EQ(platform::Read_File(Scratch(name)), name);
    }
    EXPECT_EQ(platform::Read_File(Scratch("nOTES 1.TXT")), "Notes 1.txt");
    platform::Replace_File(Scratch("NOTES 1.txt"), "new");
    EXPECT_EQ(platform::Read_File(Scratch("Notes 1.txt")), "new");
    EXPECT_EQ(Names_Left().size(), 3U);
}

TEST_F(Files_Contract, A_Missing_File_Is_An_Error_That_Names_It) {
    const std::string path = Scratch("missing.dat");
    EXPECT_FALSE(platform::Path_Exists(path));
    try {
        platform::Read_File(path);
        ADD_FAILURE() << "it was read";
    } catch (const platform::File_Error &error) {
        EXPECT_NE(std::string(error.what()).find(path), std::string::npos) << error.what();
        EXPECT_GT(std::string(error.what()).size(), path.size());
    }
    EXPECT_EQ(Names_Left(), Names{});
}

TEST_F(Files_Contract, A_Folder_Is_No_File) {
    const std::string path = Scratch("pack");
    Make_Folder(path);
    EXPECT_TRUE(platform::Path_Exists(path));
    EXPECT_FALSE(platform::File_Exists(path));
    EXPECT_THROW(platform::Read_File(path), platform::File_Error);
    EXPECT_THROW(platform::Replace_File(path, "x"), platform::File_Error);
}

TEST_F(Files_Contract, A_File_That_Cannot_Be_Replaced_Stays) {
    const std::string held = Scratch("held.dat");
    const std::string kept = Scratch("kept.dat");
    for (const std::string &path : {held, kept})
        platform::Replace_File(path, "old");
    Lock_File(held);
    Protect_File(kept);
    for (const std::string &path : {held, kept}) {
        EXPECT_THROW(platform::Replace_File(path, "new"), platform::File_Error);
        EXPECT_TRUE(platform::File_Exists(path));
    }
    EXPECT_THROW(platform::Read_File(held), platform::File_Error);
    EXPECT_EQ(platform::Read_File(kept), "old");
    EXPECT_EQ(Names_Left(), (Names{"held.dat", "kept.dat"}));
}

TEST_F(Files_Contract, Folders_Are_Listed_And_Files_Deleted) {
    Make_Folder(Scratch("pack"));
    for (const char *name : {"pack.bmp", "kept.bmp", "\xD0\xB4.bmp"})
        platform::Replace_File(Scratch(name), "x");
    Protect_File(Scratch("kept.bmp"));
    platform::Delete_File(Scratch("PACK.bmp"));
    for (const char *name : {"pack.bmp", "kept.bmp", "pack"})
        EXPECT_THROW(platform::Delete_File(Scratch(name)), platform::File_Error) << name;
    const std::string folder = Scratch("").substr(0, Scratch("").size() - 1);
    Names files = platform::Names_In_Folder(folder, platform::Listed::Files);
    std::sort(files.begin(), files.end());
    EXPECT_EQ(files, (Names{"kept.bmp", "\xD0\xB4.bmp"}));
    EXPECT_EQ(platform::Names_In_Folder(folder, platform::Listed::Folders), Names{"pack"});
    EXPECT_EQ(platform::Names_In_Folder(Scratch("none"), platform::Listed::Files), Names{});
    EXPECT_TRUE(platform::Folder_Exists(folder) && platform::Folder_Exists(Scratch("Pack")));
    EXPECT_FALSE(platform::Folder_Exists(Scratch("none")) || platform::Folder_Exists(Scratch("kept.bmp")));
}

} // namespace
