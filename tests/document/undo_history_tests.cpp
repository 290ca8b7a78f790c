#include "document/undo_history.h"

#include <gtest/gtest.h>

#include <functional>

#include "support/pictures.h"

namespace orbelle::document {
namespace {

// A document of `layers` layers; the lowest one's Hue tells states apart.
Document DocumentOf(int layers) {
    Document document;
    document.Master.Layers.resize(static_cast<std::size_t>(layers));
    document.Master.SelectedLayer = layers - 1;
    return document;
}

void Step(UndoHistory& history, Document& document, int hue) {
    history.TruncateRedo();
    history.PushSnapshot(document);
    document.Master.Layers[0].Hue = hue;
}

// The Hues met on the way back to the first state, and then forth to the last.
std::vector<int> HuesOnTheWay(UndoHistory& history, Document& document) {
    std::vector<int> hues;
    while (history.Undo(document))
        hues.push_back(document.Master.Layers[0].Hue);
    while (history.Redo(document))
        hues.push_back(document.Master.Layers[0].Hue);
    return hues;
}

TEST(UndoHistory, GoesBackAndForthThroughWholeStacksAndCopiesNoPixel) {
    Document document = DocumentOf(1);
    document.Master.Layers[0].Image = testing::FilledPicture(2, 2, 0xFF000000);
    UndoHistory history;
    history.PushSnapshot(document);
    document.Master.Layers.push_back(document.Master.Layers[0]);
    document.Master.SelectedLayer = 1;
    history.PushSnapshot(document);
    const graphics::Argb* pixels = document.Master.Layers[1].Image.Pixels();
    document.Master.Layers[1].Image.SetPixel(0, 0, 0x12345678);
    document.Master.Layers[0].Visible = false;

    ASSERT_TRUE(history.Undo(document));
    EXPECT_EQ(document.Master.Layers[1].Image.Pixels(), pixels);
    EXPECT_EQ(document.Master.Layers[1].Image.GetPixel(0, 0), 0xFF000000);
    EXPECT_TRUE(document.Master.Layers[0].Visible);
    ASSERT_TRUE(history.Undo(document));
    EXPECT_EQ(document.Master.LayerCount(), 1);
    EXPECT_EQ(document.Master.SelectedLayer, 0);
    EXPECT_FALSE(history.Undo(document));
    EXPECT_EQ(history.RedoCount(), 2);

    ASSERT_TRUE(history.Redo(document));
    ASSERT_TRUE(history.Redo(document));
    EXPECT_FALSE(history.Redo(document));
    EXPECT_EQ(document.Master.Layers[1].Image.GetPixel(0, 0), 0x12345678U);
    EXPECT_FALSE(document.Master.Layers[0].Visible);
    EXPECT_EQ(document.Master.SelectedLayer, 1);
    EXPECT_EQ(history.UndoIndex(), 2);
    EXPECT_EQ(history.RedoCount(), 0);
}

TEST(UndoHistory, AnEditAfterUndoForgetsWhatLayAhead) {
    Document document = DocumentOf(1);
    UndoHistory history;
    for (const int hue : {1, 2, 3})
        Step(history, document, hue);
    history.Undo(document);
    history.Undo(document);
    Step(history, document, 9);
    EXPECT_EQ(history.RedoCount(), 0);
    EXPECT_EQ(history.UndoCount(), 2);
    EXPECT_EQ(HuesOnTheWay(history, document), (std::vector<int>{1, 0, 1, 9}));
}

TEST(UndoHistory, EveryStepMarksTheDocumentAsChanged) {
    Document document = DocumentOf(1);
    UndoHistory history;
    const std::function<void()> steps[] = {[&] { history.PushSnapshot(document); },
                                           [&] { history.Undo(document); },
                                           [&] { history.Redo(document); }};
    for (const auto& step : steps) {
        document.Modified = false;
        step();
        EXPECT_TRUE(document.Modified) << &step - steps;
    }
}

TEST(UndoHistory, RefusesMoreThan101LayersWithNothingLost) {
    Document document = DocumentOf(101);
    UndoHistory history;
    history.PushSnapshot(document);
    document.Master.Layers.emplace_back();
    EXPECT_THROW(history.PushSnapshot(document), HistoryLimit);
    EXPECT_EQ(history.UndoIndex(), 1);
    // The step that led here can still be taken back and forth.
    history.Undo(document);
    EXPECT_EQ(document.Master.LayerCount(), 101);
    history.Redo(document);
    EXPECT_EQ(document.Master.LayerCount(), 102);
}

TEST(UndoHistory, Refuses5002SnapshotsWithNothingLost) {
    Document document = DocumentOf(1);
    UndoHistory history;
    for (int step = 1; step <= 5001; ++step)
        Step(history, document, step);
    EXPECT_THROW(history.PushSnapshot(document), HistoryLimit);
    const std::vector<int> hues = HuesOnTheWay(history, document);
    EXPECT_EQ(hues.size(), 2 * 5001U);
    EXPECT_EQ(hues[5000], 0);
    EXPECT_EQ(hues.back(), 5001);
}

// Two steps back from four, and one of these works twice.
TEST(UndoHistory, RollBackGoesBackToAPlaceWhateverWasDoneAndForgotten) {
    // Edit, undo, redo, clear.
    for (const std::string work : {"e", "ee", "u", "r", "ue", "rre", "uu", "urr", "c", "cee", "ec",
                                   "uece", "", "eur", "rceu"}) {
        SCOPED_TRACE(work);
        Document document = DocumentOf(1);
        UndoHistory history;
        for (const int hue : {1, 2, 3, 4})
            Step(history, document, hue);
        history.Undo(document);
        history.Undo(document);
        for (int time = 0; time < 2; ++time) {
            const Document before = document;
            history.Settle();
            const UndoHistory::Place place = history.Here();
            for (const char step : work) {
                if (step == 'e')
                    Step(history, document, 99);
                else if (step == 'u')
                    history.Undo(document);
                else if (step == 'r')
                    history.Redo(document);
                else
                    history.ClearHistory();
            }
            history.RollBack(place);
            document = before;
        }
        EXPECT_EQ(history.UndoIndex(), 2);
        EXPECT_EQ(history.RedoCount(), 2);
        EXPECT_EQ(HuesOnTheWay(history, document), (std::vector<int>{1, 0, 1, 2, 3, 4}));
    }
}

}  // namespace
}  // namespace orbelle::document
