#include "editing/stack_commands.h"

#include "editing/layer_commands.h"
#include "editing/menu_state.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "editing_fixture.h"

namespace orbelle::editing {
namespace {

using graphics::Argb;
using graphics::Bitmap;
using graphics::RectF;
using testing::FilledPicture;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr Argb kBlue = 0xFF204060;
constexpr Argb kGold = 0xFFC0A010;

class StackCommands : public EditingTest {
protected:
    // An empty page with `count` layers whose ImageWidth and opacity (in tenths) are 1, 2, 3...
    void NewStack(int count, int selected) {
        NewPage(8, 8);
        editor.Document.Layers.clear();
        for (int i = 1; i <= count; ++i)
            AddLayer(FilledPicture(i, 1, kBlue), {0, 0, static_cast<float>(i), 1}).Opacity =
                static_cast<float>(i) / 10;
        SelectLayer(editor, selected);
    }

    std::string Order() {
        std::string order;
        for (const document::IconLayer& layer : editor.Document.Layers)
            order += std::to_string(layer.ImageWidth);
        return order;
    }

    Button& LayerButton(int number) {
        return editor.Controls.LayerBar[static_cast<std::size_t>(number)];
    }

    void FillHistory(int count) {
        while (editor.History.UndoIndex() < count)
            editor.History.PushSnapshot(editor.Document);
    }
};

TEST_F(StackCommands, OrderMovesTheLayerAndKeepsItSelected) {
    const struct {
        int Selected;
        LayerOrder Order;
        const char* Result;
        int Place;
    } cases[] = {
        {1, LayerOrder::ToFront, "1342", 3},   {3, LayerOrder::ToFront, "1234", 3},
        {2, LayerOrder::ToBack, "3124", 0},    {0, LayerOrder::ToBack, "1234", 0},
        {2, LayerOrder::BackOne, "1324", 1},   {0, LayerOrder::BackOne, "1234", 0},
        {1, LayerOrder::FowardOne, "1324", 2}, {3, LayerOrder::FowardOne, "1234", 3},
    };
    for (const auto& [selected, order, result, place] : cases) {
        NewStack(4, selected);
        SetLayerOrder(editor, order);
        EXPECT_EQ(Order(), result);
        EXPECT_EQ(editor.Document.SelectedLayer, place);
        EXPECT_EQ(editor.History.UndoIndex(), 1);
        EXPECT_TRUE(LayerButton(layer_buttons::SetOrder).Enabled);
        EXPECT_EQ(LayerButton(layer_buttons::MergeDown).Enabled, place > 0);
        Undo(editor);
        EXPECT_EQ(Order(), "1234");
        EXPECT_EQ(editor.Document.SelectedLayer, selected);
    }
}

TEST_F(StackCommands, NothingHappensWithOneLayerToOrderOrWithoutASelectedLayer) {
    NewStack(1, 0);
    SetLayerOrder(editor, LayerOrder::ToFront);
    EXPECT_EQ(editor.History.UndoIndex(), 0);

    NewStack(2, 1);
    editor.Document.SelectedLayer = document::kNoLayer;
    SetLayerOrder(editor, LayerOrder::ToFront);
    FlipRotateLayer(editor, FlipRotate::FlipH);
    CombineIcon(editor);
    DeleteCommand(editor);
    RemoveLayerCommand(editor);
    HideLayerCommand(editor);
    MergeDownCommand(editor);
    EXPECT_EQ(Order(), "12");
    EXPECT_EQ(editor.History.UndoIndex(), 0);
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(StackCommands, FlipsAndRotationsTurnThePictureInItsOldRect) {
    // abc / def
    constexpr Argb a = 0xFF000001, b = 0xFF000002, c = 0x00000003, d = 0xFF000004, e = 0xFF000005,
                   f = 0x80000006;
    Bitmap picture(3, 2);
    std::ranges::copy(std::initializer_list<Argb>{a, b, c, d, e, f}, picture.MutablePixels());
    const struct {
        FlipRotate Mode;
        int Width;
        std::vector<Argb> Pixels;
        graphics::PointF Gap;  // page pixel that c leaves out of the region
    } cases[] = {
        {FlipRotate::FlipH, 3, {c, b, a, f, e, d}, {10 - 1, 20}},
        {FlipRotate::FlipV, 3, {d, e, f, a, b, c}, {10 + 2 - 1, 20 + 1}},
        {FlipRotate::Rotate90CW, 2, {d, a, e, b, f, c}, {10 + 1 - 1, 20 + 2}},
        {FlipRotate::Rotate90CWW, 2, {a, d, b, e, c, f}, {10 - 1, 20 + 2}},
    };
    for (const auto& [mode, width, pixels, gap] : cases) {
        NewPage(32, 32);
        AddLayer(picture, {10, 20, 3, 2});
        FlipRotateLayer(editor, mode);
        const document::IconLayer& layer = Layer(1);
        ASSERT_EQ(layer.Image.Width(), width);
        EXPECT_EQ(std::vector<Argb>(layer.Image.Pixels(), layer.Image.Pixels() + 6), pixels);
        EXPECT_EQ(layer.Rect, (RectF{10, 20, 3, 2}));
        EXPECT_EQ(layer.ImageWidth, 3);
        EXPECT_EQ(layer.ImageHeight, 2);
        for (int y = 0; y < layer.Image.Height(); ++y) {
            for (int x = 0; x < width; ++x) {
                const graphics::PointF point{10.0F + x - 1, 20.0F + y};
                EXPECT_EQ(layer.Region.IsVisiblePoint(point.X, point.Y), point != gap);
            }
        }
        EXPECT_EQ(editor.History.UndoIndex(), 1);
        Undo(editor);
        EXPECT_TRUE(Layer(1).Image.SharesPixelsWith(picture));
    }
}

TEST_F(StackCommands, DeleteSelectsTheLayerBelowAndShowsItsSliders) {
    const struct {
        int Selected;
        const char* Result;
        int Place;
        int Opacity;
    } cases[] = {{2, "12", 1, 20}, {1, "13", 0, 10}, {0, "23", 0, 20}};
    for (const auto& [selected, result, place, opacity] : cases) {
        NewStack(3, selected);
        Layer(place == selected ? selected + 1 : place).Hue = 33;
        DeleteCommand(editor);
        EXPECT_EQ(Order(), result);
        EXPECT_EQ(editor.Document.SelectedLayer, place);
        EXPECT_EQ(editor.Controls.Opacity.Value, opacity);
        EXPECT_EQ(editor.Controls.Hue.Value, 33);
        EXPECT_EQ(editor.History.UndoIndex(), 1);
        EXPECT_TRUE(LayerButton(layer_buttons::Remove).Enabled);
        // The sliders are written into the layer that they were shown for.
        Undo(editor);
        EXPECT_EQ(Order(), "123");
        Redo(editor);
        EXPECT_EQ(editor.Document.Selected().Hue, 33);
    }
}

TEST_F(StackCommands, TheButtonKeepsTheLastLayerAndTheMenuRemovesIt) {
    NewStack(2, 1);
    RemoveLayerCommand(editor);
    EXPECT_EQ(Order(), "1");
    EXPECT_FALSE(LayerButton(layer_buttons::Remove).Enabled);
    EXPECT_TRUE(LayerButton(layer_buttons::Hide).Enabled);

    DeleteCommand(editor);
    EXPECT_EQ(editor.Document.LayerCount(), 0);
    EXPECT_FALSE(editor.Document.HasSelection());
    EXPECT_EQ(*editor.Canvas.GetPixel(0, 0), 0u);
    EXPECT_FALSE(editor.Controls.Opacity.Enabled);
    EXPECT_FALSE(editor.Controls.Hue.Enabled);
    EXPECT_TRUE(LayerButton(layer_buttons::Add).Enabled);
    for (const int button : {layer_buttons::Remove, layer_buttons::Hide, layer_buttons::SetOrder,
                             layer_buttons::MergeDown})
        EXPECT_FALSE(LayerButton(button).Enabled) << button;

    Undo(editor);
    EXPECT_EQ(editor.Document.SelectedLayer, 0);
    EXPECT_TRUE(editor.Controls.Opacity.Enabled);
    EXPECT_TRUE(LayerButton(layer_buttons::Hide).Enabled);
    EXPECT_TRUE(LayerButton(layer_buttons::Hide).Pressed);
}

TEST_F(StackCommands, HideLayerIsNoUndoStep) {
    NewStack(2, 1);
    editor.Document.Modified = false;
    HideLayerCommand(editor);
    EXPECT_FALSE(Layer(1).Visible);
    EXPECT_FALSE(LayerButton(layer_buttons::Hide).Pressed);
    EXPECT_FALSE(LayerButton(layer_buttons::SetOrder).Enabled);
    EXPECT_FALSE(LayerButton(layer_buttons::MergeDown).Enabled);
    EXPECT_EQ(*editor.Canvas.GetPixel(1, 0), 0u);
    HideLayerCommand(editor);
    EXPECT_TRUE(Layer(1).Visible);
    EXPECT_TRUE(LayerButton(layer_buttons::Hide).Pressed);
    EXPECT_TRUE(LayerButton(layer_buttons::MergeDown).Enabled);
    EXPECT_NE(*editor.Canvas.GetPixel(1, 0), 0u);
    EXPECT_EQ(editor.History.UndoIndex(), 0);
    EXPECT_FALSE(editor.Document.Modified);
}

TEST_F(StackCommands, MergeBlendsBothLayersInTheBoxOfBoth) {
    NewPage(8, 8);
    document::IconLayer& below = AddLayer(FilledPicture(2, 2, kBlue), {1, 1, 2, 2});
    below.Opacity = 0.5F;
    below.Region = graphics::Region::FromRect({0, 1, 2, 2});
    below.ScaleValue = 9;
    // One pixel drawn as 2 x 3, partly above the page.
    document::IconLayer& above = AddLayer(FilledPicture(1, 1, kGold), {2, -1, 2, 3});
    above.Opacity = 0.5F;
    above.Region = graphics::Region::FromRect({1, -1, 2, 3});
    above.Hue = 70;
    SelectLayer(editor, 2);

    CombineIcon(editor);
    ASSERT_EQ(editor.Document.LayerCount(), 2);
    EXPECT_EQ(editor.Document.SelectedLayer, 1);
    const document::IconLayer& merged = Layer(1);
    EXPECT_EQ(merged.Rect, (RectF{1, -1, 3, 4}));
    EXPECT_EQ(merged.BaseRect, merged.Rect);
    EXPECT_EQ(merged.ImageWidth, 3);
    EXPECT_EQ(merged.ImageHeight, 4);
    EXPECT_EQ(merged.Opacity, 1);
    EXPECT_EQ(merged.ScaleValue, 0);
    EXPECT_EQ(merged.Hue, 0);
    // Alpha 0.5 x 255 rounds to 128; both at once: R = 255 x 128 + 128 x 127 = 48896, which is 192
    // x 255, and red is (255 x 128 x 192 + 128 x 127 x 32) / R = 139.
    constexpr Argb b = 0x80204060, g = 0x80C0A010, both = 0xC08B802B;
    EXPECT_EQ(std::vector<Argb>(merged.Image.Pixels(), merged.Image.Pixels() + 12),
              (std::vector<Argb>{0, g, g,     //
                                 0, g, g,     //
                                 b, both, g,  //
                                 b, b, 0}));
    EXPECT_EQ(merged.Region.Bounds(), (RectF{0, -1, 3, 4}));
    EXPECT_FALSE(merged.Region.IsVisiblePoint(0, 0));
    EXPECT_EQ(editor.Controls.Opacity.Value, 100);
    EXPECT_EQ(editor.Controls.Hue.Value, 0);

    EXPECT_EQ(editor.History.UndoIndex(), 2);
    for (int step = 0; step < 2; ++step) {
        Undo(editor);
        ASSERT_EQ(editor.Document.LayerCount(), 3);
        EXPECT_EQ(Layer(1).Opacity, 0.5F);
        EXPECT_EQ(editor.Document.SelectedLayer, 2);
    }
    EXPECT_EQ(Layer(2).Hue, 70);
}

TEST_F(StackCommands, AMergedLayerCanBePickedThoughTheLowerOneWasEmpty) {
    NewPage(8, 8);
    AddLayer(FilledPicture(2, 2, kBlue), {1, 1, 2, 2}).Region =
        graphics::Region::FromRect({0, 1, 2, 2});
    SelectLayer(editor, 1);
    CombineIcon(editor);
    EXPECT_EQ(Layer(0).Region.Bounds(), (RectF{0, 1, 2, 2}));
}

TEST_F(StackCommands, MergeNeedsALayerBelow) {
    NewStack(2, 0);
    CombineIcon(editor);
    MergeDownCommand(editor);
    EXPECT_EQ(Order(), "12");
    EXPECT_EQ(editor.History.UndoIndex(), 0);
}

TEST_F(StackCommands, LayersTooFarApartAreNotMerged) {
    NewStack(2, 1);
    Layer(1).Rect.X = 20000;
    MergeDownCommand(editor);
    ASSERT_EQ(host.Messages.size(), 1u);
    EXPECT_EQ(Order(), "12");
    EXPECT_EQ(editor.History.UndoIndex(), 0);
    EXPECT_EQ(host.Busy, 0);
}

TEST_F(StackCommands, AFullHistoryLeavesTheStackAsItIs) {
    NewStack(2, 1);
    FillHistory(document::UndoHistory::kMaxSnapshots - 1);
    CombineIcon(editor);
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_EQ(Order(), "12");
    EXPECT_EQ(editor.History.UndoIndex(), document::UndoHistory::kMaxSnapshots - 1);
    SetLayerOrder(editor, LayerOrder::ToBack);
    EXPECT_EQ(Order(), "21");
    FlipRotateLayer(editor, FlipRotate::Rotate90CW);
    DeleteCommand(editor);
    EXPECT_EQ(host.Messages.size(), 3u);
    EXPECT_EQ(Order(), "21");
    EXPECT_EQ(Layer(0).Image.Width(), 2);
}

TEST_F(StackCommands, TheToolbarEndsTheSelectionAndShowsThatInAnyCase) {
    NewPage(8, 8);
    editor.View.Zoom = 1;
    DrawScene(editor);
    const Bitmap plain = editor.Scene;
    for (void (*command)(Editor&) : {RemoveLayerCommand, HideLayerCommand, MergeDownCommand}) {
        editor.Document.SelectedLayer = document::kNoLayer;
        editor.Selection.AddFrame(2, 2, 0, 0, document::FrameShape::Rectangle);
        DrawScene(editor);
        ASSERT_FALSE(testing::SamePixels(editor.Scene, plain));
        command(editor);
        EXPECT_FALSE(editor.Selection.Exists());
        EXPECT_TRUE(testing::SamePixels(editor.Scene, plain));
    }
}

// Which entries are enabled, in the order of the menu: Cut, Copy, Delete, Merge Down, the flips and
// rotations, Back One, Foward One, To Back, To Front.
TEST_F(StackCommands, TheEditMenuWaitsForAVisibleLayerThatClipsNoOther) {
    const auto states = [&] {
        OpenEditMenu(editor);
        std::string text;
        const Controls& controls = editor.Controls;
        for (const MenuEntry& entry :
             {controls.m_Cut, controls.m_Copy, controls.m_Del, controls.menu_Merge,
              controls.menu_FlipH, controls.menu_FlipV, controls.m_90CW, controls.m_90CWW,
              controls.m_BackOne, controls.m_FowardOne, controls.m_ToBack, controls.m_ToFront})
            text += entry.Enabled ? '+' : '-';
        return text;
    };
    EXPECT_EQ(states(), "------------");
    NewStack(1, 0);
    EXPECT_EQ(states(), "+++-++++----");
    NewStack(3, 0);
    EXPECT_EQ(states(), "+++-++++-+-+");
    SelectLayer(editor, 1);
    EXPECT_EQ(states(), "++++++++++++");
    SelectLayer(editor, 2);
    EXPECT_EQ(states(), "+++++++++-+-");
    Layer(1).Visible = false;
    EXPECT_EQ(states(), "+++-+++++-+-");
    Layer(1).Visible = true;
    Layer(2).ClipNextLayer = true;
    EXPECT_EQ(states(), "---+--------");
    Layer(2).Visible = false;
    EXPECT_EQ(states(), "------------");
    editor.Document.SelectedLayer = document::kNoLayer;
    EXPECT_EQ(states(), "------------");

    EXPECT_FALSE(editor.Controls.m_Paste.Enabled);
    host.Clipboard = FilledPicture(1, 1, kBlue);
    OpenEditMenu(editor);
    EXPECT_TRUE(editor.Controls.m_Paste.Enabled);
    editor.DocumentExists = false;
    OpenEditMenu(editor);
    EXPECT_FALSE(editor.Controls.m_Paste.Enabled);
}

}  // namespace
}  // namespace orbelle::editing
