#include "document/undo_history.h"

#include <gtest/gtest.h>

#include <functional>

#include "support/pictures.h"

namespace orbelle::document {
namespace {

// A document of `layers` layers that can be told apart by their Hue.
Document DocumentOf(int layers) {
    Document document;
    document.Master.Width = document.Master.Height = 2;
    for (int i = 0; i < layers; ++i) {
        IconLayer& layer = document.Master.Layers.emplace_back();
        layer.Image = testing::FilledPicture(2, 2, 0xFF000000);
        layer.Hue = i;
    }
    document.Master.SelectedLayer = layers - 1;
    return document;
}

TEST(UndoHistory, GoesBackAndForthThroughWholeStacks) {
    Document document = DocumentOf(1);
    UndoHistory history;
    EXPECT_FALSE(history.Undo(document));
    EXPECT_FALSE(history.Redo(document));

    history.PushSnapshot(document);
    document.Master.Layers.push_back(document.Master.Layers[0]);
    document.Master.SelectedLayer = 1;
    history.PushSnapshot(document);
    document.Master.Layers[1].Image.SetPixel(0, 0, 0x12345678);
    EXPECT_EQ(history.UndoIndex(), 2);

    ASSERT_TRUE(history.Undo(document));
    EXPECT_EQ(document.Master.Layers[1].Image.GetPixel(0, 0), 0xFF000000);
    ASSERT_TRUE(history.Undo(document));
    EXPECT_EQ(document.Master.LayerCount(), 1);
    EXPECT_EQ(document.Master.SelectedLayer, 0);
    EXPECT_FALSE(history.Undo(document));
    EXPECT_EQ(history.RedoCount(), 2);

    ASSERT_TRUE(history.Redo(document));
    ASSERT_TRUE(history.Redo(document));
    EXPECT_FALSE(history.Redo(document));
    EXPECT_EQ(document.Master.Layers[1].Image.GetPixel(0, 0), 0x12345678U);
    EXPECT_EQ(document.Master.SelectedLayer, 1);
    EXPECT_EQ(history.UndoIndex(), 2);
    EXPECT_EQ(history.RedoCount(), 0);
}

TEST(UndoHistory, AnEditAfterUndoForgetsWhatLayAhead) {
    Document document = DocumentOf(1);
    UndoHistory history;
    for (int step = 1; step <= 3; ++step) {
        history.PushSnapshot(document);
        document.Master.Layers[0].Hue = 10 * step;
    }
    history.Undo(document);
    history.Undo(document);
    history.TruncateRedo();
    history.PushSnapshot(document);
    document.Master.Layers[0].Hue = 99;
    EXPECT_EQ(history.RedoCount(), 0);
    EXPECT_EQ(history.UndoCount(), 2);
    history.Undo(document);
    EXPECT_EQ(document.Master.Layers[0].Hue, 10);
    history.Redo(document);
    EXPECT_EQ(document.Master.Layers[0].Hue, 99);
}

TEST(UndoHistory, UndoKeepsWhatChangedSinceTheLastSnapshotForRedo) {
    Document document = DocumentOf(2);
    UndoHistory history;
    history.PushSnapshot(document);
    document.Master.Layers[0].Visible = false;
    history.Undo(document);
    EXPECT_TRUE(document.Master.Layers[0].Visible);
    history.Redo(document);
    EXPECT_FALSE(document.Master.Layers[0].Visible);
}

TEST(UndoHistory, EveryStepMarksTheDocumentAsChanged) {
    Document document = DocumentOf(1);
    UndoHistory history;
    history.PushSnapshot(document);
    EXPECT_TRUE(document.Modified);
    document.Modified = false;
    history.Undo(document);
    EXPECT_TRUE(document.Modified);
    document.Modified = false;
    history.Redo(document);
    EXPECT_TRUE(document.Modified);
}

TEST(UndoHistory, RefusesMoreThan101LayersWithNothingLost) {
    Document document = DocumentOf(101);
    UndoHistory history;
    history.PushSnapshot(document);
    document.Master.Layers.emplace_back();
    EXPECT_THROW(history.PushSnapshot(document), HistoryLimit);
    EXPECT_EQ(document.Master.LayerCount(), 102);
    EXPECT_EQ(history.UndoIndex(), 1);
    // The step that led here can still be taken back and forth.
    history.Undo(document);
    EXPECT_EQ(document.Master.LayerCount(), 101);
    history.Redo(document);
    EXPECT_EQ(document.Master.LayerCount(), 102);
}

// Two steps back from four: the stacks from there to both ends, told by their Hue.
TEST(UndoHistory, RollBackGoesBackToAPlaceWhateverWasDoneAndForgotten) {
    using Work = std::function<void(UndoHistory&, Document&)>;
    const auto edit = [](UndoHistory& history, Document& document) {
        history.TruncateRedo();
        history.PushSnapshot(document);
        document.Master.Layers[0].Hue = 99;
    };
    const auto undo = [](UndoHistory& history, Document& document) { history.Undo(document); };
    const auto redo = [](UndoHistory& history, Document& document) { history.Redo(document); };
    const auto clear = [](UndoHistory& history, Document&) { history.ClearHistory(); };
    const std::vector<Work> works[] = {{edit},
                                       {edit, edit},
                                       {undo},
                                       {redo},
                                       {undo, edit},
                                       {redo, redo, edit},
                                       {undo, undo},
                                       {undo, redo, redo},
                                       {clear},
                                       {clear, edit, edit},
                                       {edit, clear},
                                       {undo, edit, clear, edit},
                                       {},
                                       {edit, undo, redo},
                                       {redo, clear, edit, undo}};
    for (const std::vector<Work>& work : works) {
        SCOPED_TRACE(&work - works);
        Document document = DocumentOf(1);
        UndoHistory history;
        for (const int hue : {1, 2, 3, 4}) {
            history.PushSnapshot(document);
            document.Master.Layers[0].Hue = hue;
        }
        history.Undo(document);
        history.Undo(document);
        for (int time = 0; time < 2; ++time) {
            const Document before = document;
            history.Settle();
            const UndoHistory::Place place = history.Here();
            for (const Work& step : work)
                step(history, document);
            history.RollBack(place);
            document = before;
        }
        EXPECT_EQ(history.UndoIndex(), 2);
        EXPECT_EQ(history.RedoCount(), 2);
        std::vector<int> hues;
        while (history.Undo(document))
            hues.push_back(document.Master.Layers[0].Hue);
        while (history.Redo(document))
            hues.push_back(document.Master.Layers[0].Hue);
        EXPECT_EQ(hues, (std::vector<int>{1, 0, 1, 2, 3, 4}));
    }
}

TEST(UndoHistory, Refuses5002SnapshotsWithNothingLost) {
    Document document = DocumentOf(1);
    UndoHistory history;
    for (int step = 1; step <= 5001; ++step) {
        history.PushSnapshot(document);
        document.Master.Layers[0].Hue = step;
    }
    EXPECT_THROW(history.PushSnapshot(document), HistoryLimit);
    EXPECT_EQ(document.Master.Layers[0].Hue, 5001);
    while (history.Undo(document)) {
    }
    EXPECT_EQ(document.Master.Layers[0].Hue, 0);
    while (history.Redo(document)) {
    }
    EXPECT_EQ(document.Master.Layers[0].Hue, 5001);
}

TEST(UndoHistory, ASnapshotCopiesNoPixel) {
    Document document = DocumentOf(50);
    UndoHistory history;
    history.PushSnapshot(document);
    const graphics::Argb* pixels = document.Master.Layers[7].Image.Pixels();
    history.Undo(document);
    EXPECT_EQ(document.Master.Layers[7].Image.Pixels(), pixels);
}

}  // namespace
}  // namespace orbelle::document
