// The display modes of a wallpaper as the system's values.
#include "desktop/wallpaper.h"
#include "tests/fakes/fake_test.h"

namespace {

using Wallpaper = Fake_Test;

TEST_F(Wallpaper, Modes_Are_Stored_As_The_System_Knows_Them) {
    const struct {
        std::int16_t mode;
        const char *tile, *style;
    } cases[] = {{0, "0", "0"}, {1, "1", "0"}, {2, "0", "2"}, {5, "0", "2"}, {-1, "0", "2"}};
    for (const auto &[mode, tile, style] : cases) {
        Set_Display_Mode_Wallpaper("C:\\3.bmp", mode);
        EXPECT_EQ(Fakes().registry["Control Panel\\Desktop\\TileWallpaper"], tile) << mode;
        EXPECT_EQ(Fakes().registry["Control Panel\\Desktop\\WallpaperStyle"], style) << mode;
    }
    EXPECT_EQ(Fakes().wallpapers, std::vector<std::string>(5, "C:\\3.bmp"));
}

} // namespace
