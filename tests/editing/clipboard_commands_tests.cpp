#include "editing/clipboard_commands.h"

#include "editing/layer_commands.h"
#include "editing/stack_commands.h"
#include "editing/undo_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

using graphics::Argb;
using graphics::Bitmap;
using graphics::RectF;
using testing::FilledPicture;
using ::testing::IsEmpty;
using testing::SamePixels;

constexpr Argb kBlue = 0xFF204060;

Bitmap Row(const std::vector<Argb>& pixels) {
    Bitmap picture(static_cast<int>(pixels.size()), 1);
    std::ranges::copy(pixels, picture.MutablePixels());
    return picture;
}

std::vector<Argb> Pixels(const Bitmap& picture) {
    return {picture.Pixels(), picture.Pixels() + picture.Width() * picture.Height()};
}

// A page of 8 x 8 with the selected layer 1 at (1, 1): pixels 0xFF000000 + 16 y + x.
class ClipboardCommands : public EditingTest {
protected:
    ClipboardCommands() {
        NewPage(8, 8);
        Bitmap picture(4, 3);
        for (int y = 0; y < 3; ++y)
            for (int x = 0; x < 4; ++x)
                picture.SetPixel(x, y, PixelAt(x, y));
        document::IconLayer& layer = AddLayer(picture, {1, 1, 4, 3});
        layer.Opacity = 0.5F;
        layer.Region = graphics::Region::FromRect({0, 1, 4, 3});
        layer.Hue = 12;
        SelectLayer(editor, 1);
    }

    static Argb PixelAt(int x, int y) { return 0xFF000000 + static_cast<Argb>(16 * y + x); }

    // Page pixels from (left, top) to before (right, bottom).
    void Select(int left, int top, int right, int bottom) {
        editor.Selection.Start();
        editor.Selection.AddFrame(right, bottom, left, top, document::FrameShape::Rectangle);
    }

    // Of the layer, without the pixels of the page's square (2, 0) to (4, 2).
    void ExpectCut(const Bitmap& picture) {
        for (int y = 0; y < 3; ++y)
            for (int x = 0; x < 4; ++x)
                EXPECT_EQ(picture.GetPixel(x, y), y == 0 && (x == 1 || x == 2) ? 0 : PixelAt(x, y))
                    << x << ", " << y;
    }

    const std::vector<Argb> selectedPixels{0, 0, PixelAt(1, 0), PixelAt(2, 0)};
};

TEST_F(ClipboardCommands, CopyTakesTheSelectedPixelsWithTheirPlace) {
    Select(2, 0, 4, 2);
    CopyToClipboard(editor);
    ASSERT_TRUE(editor.ClipboardLayer);
    const document::IconLayer& copy = *editor.ClipboardLayer;
    EXPECT_EQ(Pixels(copy.Image), selectedPixels);
    EXPECT_EQ(copy.Rect, (RectF{2, 0, 2, 2}));
    EXPECT_EQ(copy.BaseRect, copy.Rect);
    EXPECT_EQ(copy.ImageWidth, 2);
    EXPECT_EQ(copy.ImageHeight, 2);
    EXPECT_EQ(copy.Opacity, 0.5F);
    EXPECT_EQ(copy.Region.Bounds(), (RectF{2 - 1, 1, 2, 1}));
    EXPECT_EQ(Pixels(host.Clipboard), selectedPixels);
    EXPECT_EQ(host.ClipboardMark, "Orbelle");
    EXPECT_TRUE(editor.Selection.Exists());
    EXPECT_EQ(Layer(1).Image.GetPixel(1, 0), PixelAt(1, 0));
    EXPECT_EQ(editor.History.UndoIndex(), 0);
    EXPECT_EQ(host.Busy, 0);
}

TEST_F(ClipboardCommands, CutTakesTheSelectedPixelsOut) {
    Layer(1).Rect.Width = 6;  // as a scale drag would leave it
    Select(2, 0, 4, 2);
    CutToClipboard(editor);
    EXPECT_EQ(Pixels(host.Clipboard), selectedPixels);
    ASSERT_EQ(editor.Document.LayerCount(), 2);
    ExpectCut(Layer(1).Image);
    EXPECT_EQ(Layer(1).Rect, (RectF{1, 1, 4, 3}));
    EXPECT_FALSE(editor.Selection.Exists());
    EXPECT_EQ(editor.History.UndoIndex(), 1);
    Undo(editor);
    EXPECT_EQ(Layer(1).Image.GetPixel(1, 0), PixelAt(1, 0));
}

TEST_F(ClipboardCommands, DeleteTakesTheSelectionFirstAndThenTheLayer) {
    Select(2, 0, 4, 2);
    DeleteCommand(editor);
    ExpectCut(Layer(1).Image);
    EXPECT_EQ(*editor.Canvas.GetPixel(2, 1), 0u);
    EXPECT_TRUE(host.Clipboard.IsEmpty());
    DeleteCommand(editor);
    EXPECT_EQ(editor.Document.LayerCount(), 1);
    EXPECT_EQ(editor.History.UndoIndex(), 2);
}

TEST_F(ClipboardCommands, CutWithoutASelectionRemovesTheLayerAndPasteBringsItBack) {
    const Bitmap picture = Layer(1).Image;
    CutToClipboard(editor);
    EXPECT_EQ(editor.Document.LayerCount(), 1);
    EXPECT_EQ(editor.History.UndoIndex(), 1);
    EXPECT_TRUE(SamePixels(host.Clipboard, picture));

    PasteFromClipboard(editor);
    EXPECT_EQ(editor.History.UndoIndex(), 2);
    ASSERT_EQ(editor.Document.LayerCount(), 2);
    EXPECT_EQ(editor.Document.SelectedLayer, 1);
    EXPECT_TRUE(Layer(1).Image.SharesPixelsWith(picture));
    EXPECT_EQ(Layer(1).Rect, (RectF{1, 1, 4, 3}));
    EXPECT_EQ(Layer(1).Region.Bounds(), (RectF{0, 1, 4, 3}));
    EXPECT_EQ(editor.Controls.Opacity.Value, 50);
    EXPECT_EQ(editor.Controls.Hue.Value, 12);
    Undo(editor);
    EXPECT_EQ(editor.Document.LayerCount(), 1);
}

// Greys of a known row, drawn twice as wide: smoothly for other programs, as hard pixels here.
TEST_F(ClipboardCommands, AScaledLayerIsCopiedInTheSizeOfItsRect) {
    const Bitmap row = Row({0xFF282828, 0xFF505050, 0xFF787878, 0xFFC8C8C8});
    editor.Document.Layers.clear();
    AddLayer(row, {0, 3, 8, 1});
    SelectLayer(editor, 0);
    CopyToClipboard(editor);
    const int smooth[] = {36, 47, 68, 89, 107, 140, 186, 207};
    ASSERT_EQ(host.Clipboard.Width(), 8);
    ASSERT_EQ(host.Clipboard.Height(), 1);
    for (int x = 0; x < 8; ++x) {
        const Argb pixel = *host.Clipboard.GetPixel(x, 0);
        EXPECT_EQ(graphics::AlphaOf(pixel), 255u);
        EXPECT_NEAR(static_cast<int>(graphics::GreenOf(pixel)), smooth[x], 2);
    }

    PasteFromClipboard(editor);
    const document::IconLayer& pasted = Layer(1);
    EXPECT_EQ(Pixels(pasted.Image),
              (std::vector<Argb>{0xFF282828, 0xFF282828, 0xFF505050, 0xFF505050, 0xFF787878,
                                 0xFF787878, 0xFFC8C8C8, 0xFFC8C8C8}));
    EXPECT_EQ(pasted.Rect, (RectF{0, 3, 8, 1}));
    EXPECT_EQ(pasted.ImageWidth, 8);
    EXPECT_EQ(pasted.ImageHeight, 1);
    EXPECT_EQ(editor.ClipboardLayer->ImageWidth, 4);
}

TEST_F(ClipboardCommands, ALayerLargerThanThePageIsShownToOthersUpToThePage) {
    editor.Document.Layers.clear();
    AddLayer(FilledPicture(10, 9, kBlue), {-5, -5, 10, 9});
    SelectLayer(editor, 0);
    CopyToClipboard(editor);
    ASSERT_EQ(host.Clipboard.Width(), 10);
    ASSERT_EQ(host.Clipboard.Height(), 9);
    EXPECT_EQ(host.Clipboard.GetPixel(7, 7), kBlue);
    EXPECT_EQ(host.Clipboard.GetPixel(8, 7), 0u);
    EXPECT_EQ(host.Clipboard.GetPixel(7, 8), 0u);
    PasteFromClipboard(editor);
    EXPECT_EQ(Layer(1).Image.GetPixel(9, 8), kBlue);
}

TEST_F(ClipboardCommands, ASizeThatNoBitmapHasLeavesThePictureAsItIs) {
    Layer(1).Rect = {0, 0, 1e9F, 3};
    CopyToClipboard(editor);
    EXPECT_TRUE(host.Clipboard.IsEmpty());
    host.Clipboard = FilledPicture(1, 1, kBlue);
    PasteFromClipboard(editor);
    EXPECT_EQ(Layer(2).Image.Width(), 4);
    EXPECT_EQ(Layer(2).ImageWidth, 4);
}

TEST_F(ClipboardCommands, PasteGoesAboveTheSelectedLayerOrOnTop) {
    CopyToClipboard(editor);
    SelectLayer(editor, 0);
    Select(0, 0, 1, 1);
    PasteFromClipboard(editor);
    EXPECT_EQ(editor.Document.SelectedLayer, 1);
    EXPECT_FALSE(editor.Selection.Exists());
    ASSERT_EQ(editor.Document.LayerCount(), 3);
    EXPECT_EQ(Layer(0).ImageWidth, 8);
    EXPECT_EQ(Layer(1).ImageWidth, 4);
    EXPECT_EQ(Layer(2).ImageWidth, 4);

    editor.Document.SelectedLayer = document::kNoLayer;
    PasteFromClipboard(editor);
    EXPECT_EQ(editor.Document.SelectedLayer, 3);
    EXPECT_TRUE(editor.Controls.Opacity.Enabled);
    EXPECT_TRUE(editor.Controls.LayerBar[layer_buttons::MergeDown].Enabled);
}

TEST_F(ClipboardCommands, AnotherProgramsPictureArrivesOpaqueAtThePagesCorner) {
    CopyToClipboard(editor);
    // Over white: (128 x 32 + 127 x 255) / 255 = 143 and so on.
    host.SetClipboard(Row({0x80204060, 0x00123456, kBlue}), "words");
    PasteFromClipboard(editor);
    const document::IconLayer& layer = Layer(2);
    EXPECT_EQ(Pixels(layer.Image), (std::vector<Argb>{0xFF8F9FAF, 0xFFFFFFFF, kBlue}));
    EXPECT_EQ(layer.Rect, (RectF{0, 0, 3, 1}));
    EXPECT_EQ(layer.BaseRect, layer.Rect);
    EXPECT_EQ(layer.ImageWidth, 3);
    EXPECT_EQ(layer.ImageHeight, 1);
    EXPECT_EQ(layer.Opacity, 1);
    EXPECT_EQ(layer.Hue, 0);
    EXPECT_EQ(layer.Region.Bounds(), layer.Rect);
    EXPECT_EQ(editor.Controls.Opacity.Value, 100);
}

TEST_F(ClipboardCommands, TheMarkWithoutACopyOfOursIsAnotherPrograms) {
    host.SetClipboard(Row({0x80204060}), kClipboardMark);
    PasteFromClipboard(editor);
    EXPECT_EQ(Layer(2).Image.GetPixel(0, 0), 0xFF8F9FAF);
}

TEST_F(ClipboardCommands, NothingToCopyOrPasteIsNoUndoStep) {
    PasteFromClipboard(editor);
    editor.Document.SelectedLayer = document::kNoLayer;
    Select(0, 0, 8, 8);
    CopyToClipboard(editor);
    CutToClipboard(editor);
    DeleteSelection(editor);
    EXPECT_EQ(editor.History.UndoIndex(), 0);
    EXPECT_EQ(editor.Document.LayerCount(), 2);
    EXPECT_FALSE(editor.ClipboardLayer);
    EXPECT_EQ(Layer(1).Image.GetPixel(0, 0), PixelAt(0, 0));
}

TEST_F(ClipboardCommands, FloatingMovesTheSelectedPixelsToALayerInTwoUndoSteps) {
    Select(2, 0, 4, 2);
    FloatSelection(editor);
    ASSERT_EQ(editor.Document.LayerCount(), 3);
    EXPECT_EQ(editor.Document.SelectedLayer, 2);
    const document::IconLayer& floated = Layer(2);
    EXPECT_EQ(Pixels(floated.Image), selectedPixels);
    EXPECT_EQ(floated.Rect, (RectF{2, 0, 2, 2}));
    EXPECT_EQ(floated.ImageWidth, 2);
    EXPECT_EQ(floated.ImageHeight, 2);
    EXPECT_EQ(floated.Opacity, 0.5F);
    EXPECT_EQ(floated.Hue, 0);
    EXPECT_EQ(floated.Region.Bounds(), Layer(1).Region.Bounds());
    ExpectCut(Layer(1).Image);
    EXPECT_EQ(editor.Canvas.GetPixel(2, 1), 0x80000001u);
    EXPECT_FALSE(editor.Selection.Exists());
    EXPECT_EQ(editor.Controls.Opacity.Value, 50);
    EXPECT_TRUE(editor.Controls.LayerBar[layer_buttons::MergeDown].Enabled);

    EXPECT_EQ(editor.History.UndoIndex(), 2);
    for (int step = 0; step < 2; ++step) {
        Undo(editor);
        EXPECT_EQ(editor.Document.LayerCount(), 2);
        EXPECT_EQ(Layer(1).Image.GetPixel(1, 0), PixelAt(1, 0));
    }
}

TEST_F(ClipboardCommands, FloatingWithoutASelectedLayerCutsFromTheTopLayer) {
    editor.Document.SelectedLayer = document::kNoLayer;
    Select(2, 0, 4, 2);
    FloatSelection(editor);
    EXPECT_EQ(editor.Document.SelectedLayer, 2);
    EXPECT_EQ(Pixels(Layer(2).Image), selectedPixels);
    ExpectCut(Layer(1).Image);
}

// A selection that begins left of the right edge and ends beyond it is refused.
TEST_F(ClipboardCommands, ASelectionBeyondThePageIsCutButNotCopied) {
    Select(3, 1, 10, 2);
    CopyToClipboard(editor);
    EXPECT_TRUE(editor.ClipboardLayer->Image.IsEmpty());
    EXPECT_EQ(editor.ClipboardLayer->Rect, (RectF{3, 1, 7, 1}));

    FloatSelection(editor);
    EXPECT_TRUE(SamePixels(Layer(2).Image, Bitmap(8, 8)));
    EXPECT_EQ(Layer(2).Rect, (RectF{3, 1, 7, 1}));
    EXPECT_EQ(Layer(2).ImageWidth, 7);
    EXPECT_EQ(Layer(1).Image.GetPixel(1, 0), PixelAt(1, 0));
    EXPECT_EQ(Layer(1).Image.GetPixel(2, 0), 0u);

    PasteFromClipboard(editor);
    EXPECT_TRUE(Layer(3).Image.IsEmpty());
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(ClipboardCommands, AFullHistoryChangesNeitherLayersNorClipboard) {
    while (editor.History.UndoIndex() < document::UndoHistory::kMaxSnapshots - 1)
        editor.History.PushSnapshot(editor.Document);
    Select(2, 0, 4, 2);
    EXPECT_THROW(FloatSelection(editor), document::HistoryLimit);
    EXPECT_EQ(editor.Document.LayerCount(), 2);
    EXPECT_EQ(editor.History.UndoIndex(), document::UndoHistory::kMaxSnapshots - 1);
    editor.History.PushSnapshot(editor.Document);
    EXPECT_THROW(DeleteSelection(editor), document::HistoryLimit);
    CutToClipboard(editor);
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_TRUE(host.Clipboard.IsEmpty());
    EXPECT_TRUE(editor.Selection.Exists());
    EXPECT_EQ(Layer(1).Image.GetPixel(1, 0), PixelAt(1, 0));
}

}  // namespace
}  // namespace orbelle::editing
