#include "formats/size_previews.h"

#include <gtest/gtest.h>

#include <functional>

#include "document/compositor.h"
#include "document/layer_slots.h"
#include "filters/shrink_to_size.h"
#include "formats/size_pictures.h"
#include "support/pictures.h"

namespace orbelle::formats {
namespace {

using testing::FilledPicture;
using testing::SamePixels;

class SizePreviewsTest : public ::testing::Test {
protected:
    SizePreviewsTest() { family.Master = PageOf(64, {kRed, kBlue}); }

    static constexpr graphics::Argb kRed = 0xFFFF0000, kBlue = 0x800000FF;

    static document::Page PageOf(int side, const std::vector<graphics::Argb>& layers) {
        document::Page page;
        page.Width = page.Height = side;
        for (const graphics::Argb color : layers)
            MakeImageLayer(page, page.Layers.emplace_back(), FilledPicture(side, side, color));
        return page;
    }

    // The sizes that were made anew, as "32 16".
    std::string Remade(const std::vector<int>& sizes) {
        const std::vector<SizePreview> now =
            previews.Make(family, document::Flatten(family.Current()), sizes);
        std::string remade;
        for (const SizePreview& preview : now) {
            const bool isKept = std::ranges::any_of(last, [&](const SizePreview& before) {
                return before.Size == preview.Size &&
                       before.Picture.SharesPixelsWith(preview.Picture);
            });
            if (!isKept)
                remade += (remade.empty() ? "" : " ") + std::to_string(preview.Size);
        }
        last = now;
        return remade;
    }

    document::Document family;
    SizePreviews previews;
    std::vector<SizePreview> last;
};

TEST_F(SizePreviewsTest, OnlyWhatChangedIsMadeAnew) {
    EXPECT_EQ(Remade({48, 16}), "48 16");
    EXPECT_EQ(Remade({48, 16}), "");
    EXPECT_EQ(Remade({48, 32, 16}), "32");

    // Each way in which a layer shows, and none in which it does not.
    document::IconLayer& top = family.Master.Layers[1];
    top.Hue = 7;
    family.Master.SelectedLayer = 0;
    EXPECT_EQ(Remade({32, 16}), "");
    for (const std::function<void()>& change : std::vector<std::function<void()>>{
             [&] { top.Opacity = 0.5F; }, [&] { top.Rect.X = 3; }, [&] { top.Visible = false; },
             [&] { top.ImageWidth = 5; }, [&] { top.ImageHeight = 5; },
             [&] { top.Image.SetPixel(1, 1, kRed); }, [&] { top.ClipNextLayer = true; },
             [&] { family.Master.Layers.pop_back(); }, [&] { family.Master.Width = 60; }}) {
        change();
        EXPECT_EQ(Remade({32, 16}), "32 16");
        EXPECT_TRUE(SamePixels(last[0].Picture,
                               filters::ShrinkToSize(document::Flatten(family.Master), 32)));
    }

    // Artwork of its own follows its own page alone, wherever one is.
    family.SetArtwork(16, PageOf(16, {kBlue}));
    EXPECT_EQ(Remade({32, 16}), "16");
    family.EditedSize = 16;
    EXPECT_EQ(Remade({32, 16}), "");
    family.Current().Layers[0].Image.SetPixel(0, 0, kRed);
    EXPECT_EQ(Remade({32, 16}), "16");
    family.Master.Layers[0].Opacity = 0.25F;
    EXPECT_EQ(Remade({32, 16}), "32") << "a page that is not in force";
    family.RemoveArtwork(16);
    EXPECT_EQ(Remade({32, 16}), "16");
}

TEST_F(SizePreviewsTest, EachIsThePictureOfAnExportWithItsFindings) {
    family.SetArtwork(16, PageOf(16, {0xFFFFFFFF}));
    EXPECT_EQ(Remade({128, 24, 16}), "128 24 16");
    const graphics::Bitmap current = document::Flatten(family.Master);
    for (const SizePreview& preview : last)
        EXPECT_TRUE(
            SamePixels(preview.Picture, PictureForSize(Flatten(family, current), preview.Size)))
            << preview.Size;
    const Finding white{16, Fault::Contrast, 0xFFFFFFFF, 1};
    EXPECT_EQ(last[2].Findings, std::vector{white});
    EXPECT_EQ(last[0].Findings.back(), (Finding{128, Fault::Upscaled}));
    EXPECT_EQ(EvidentFindings(last, {16}, family), std::vector{white});
    // A dark line is as dark as the ground, but what it encloses is not: nothing to speak of.
    document::Page framed = PageOf(16, {0xFF202020});
    for (int y = 1; y < 15; ++y)
        for (int x = 1; x < 15; ++x)
            framed.Layers[0].Image.SetPixel(x, y, 0xFFFF0000);
    family.SetArtwork(16, framed);
    Remade({16});
    ASSERT_EQ(last[0].Findings.size(), 1U);
    EXPECT_EQ(last[0].Findings[0].Kind, Fault::Contrast);
    EXPECT_TRUE(EvidentFindings(last, {16}, family).empty());

    family.Master.Layers.clear();
    Remade({24});
    EXPECT_EQ(last[0].Findings, (std::vector<Finding>{{24, Fault::Empty}}));
}

}  // namespace
}  // namespace orbelle::formats
