#include "graphics/checkerboard.h"

#include <gtest/gtest.h>

#include "support/pixel_runs.h"

namespace orbelle::graphics {
namespace {

TEST(Checkerboard, BeginsInTheCornerOfItsArea) {
    const struct {
        RectI Area;
        const char* Second;
    } cases[] = {
        {{0, 0, 19, 12}, "0-4: 5-9 15-18; 5-9: 0-4 10-14; 10-11: 5-9 15-18"},
        {{2, 1, 7, 6}, "1-5: 7-8; 6: 2-6"},
        {{-3, -6, 40, 40}, "0-3: 0-1 7-11 17-18; 4-8: 2-6 12-16; 9-11: 0-1 7-11 17-18"},
        {{5, 5, 0, 9}, ""},
        {{30, 0, 9, 9}, ""},
    };
    for (const auto& [area, second] : cases) {
        Bitmap board(19, 12);
        DrawCheckerboard(board, area, 0, 0xFF336699);
        EXPECT_EQ(PixelRuns(board), second);
    }
}

}  // namespace
}  // namespace orbelle::graphics
