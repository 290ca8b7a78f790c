#include "document/undo_history.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <tuple>

#include "support/pictures.h"

namespace orbelle::document {
namespace {

constexpr std::string_view kName = "Style";

// A document of `layers` layers; the lowest one's Hue tells states apart.
Document DocumentOf(int layers) {
    Document document;
    document.Master.Layers.resize(static_cast<std::size_t>(layers));
    document.Master.SelectedLayer = layers - 1;
    return document;
}

void Step(UndoHistory& history, Document& document, int hue, std::string_view name = kName) {
    history.TruncateRedo();
    history.PushSnapshot(document, name);
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
    history.PushSnapshot(document, kName);
    document.Master.Layers.push_back(document.Master.Layers[0]);
    document.Master.SelectedLayer = 1;
    history.PushSnapshot(document, kName);
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

TEST(UndoHistory, AStepTakenBackLeavesWhatLayAheadOfIt) {
    Document document = DocumentOf(1);
    UndoHistory history;
    for (const int hue : {1, 2, 3})
        Step(history, document, hue);
    history.Undo(document);
    history.Undo(document);
    history.Settle();
    document.Modified = false;
    const auto begin = [&] {
        Step(history, document, 9);
        for (int command = 0; command < 3; ++command)
            history.Settle(false);
    };
    begin();
    history.TakeBack(document);
    EXPECT_EQ(history.RedoCount(), 2);
    EXPECT_EQ(history.UndoCount(), 3);
    EXPECT_FALSE(document.Modified);
    EXPECT_EQ(HuesOnTheWay(history, document), (std::vector<int>{0, 1, 2, 3}));
    history.Undo(document);
    history.Settle();

    begin();
    const UndoHistory::Place place = history.Here();
    history.TakeBack(document);
    history.RollBack(place);
    EXPECT_EQ(HuesOnTheWay(history, document), (std::vector<int>{2, 1, 0, 1, 2, 2}))
        << "the document was not rolled back";
    history.Settle();
    history.TakeBack(document);
    EXPECT_EQ(history.RedoCount(), 0) << "the step had ended";
    EXPECT_EQ(history.UndoIndex(), 2);
}

TEST(UndoHistory, EveryStepMarksTheDocumentAsChanged) {
    Document document = DocumentOf(1);
    UndoHistory history;
    const std::function<void()> steps[] = {[&] { history.PushSnapshot(document, kName); },
                                           [&] { history.Undo(document); },
                                           [&] { history.Redo(document); }};
    for (const auto& step : steps) {
        document.Modified = false;
        step();
        EXPECT_TRUE(document.Modified) << &step - steps;
    }
}

TEST(UndoHistory, HoldsThePagesSizeAndTheBackground) {
    Document document = DocumentOf(1);
    UndoHistory history;
    for (const int step : {1, 2, 3}) {
        history.PushSnapshot(document, kName);
        document.Master.Width = 10 * step;
        document.Master.Height = 20 * step;
        document.Background = static_cast<graphics::Argb>(step);
    }
    const auto expect = [&](int step) {
        EXPECT_EQ(document.Master.Width, 10 * step);
        EXPECT_EQ(document.Master.Height, 20 * step);
        EXPECT_EQ(document.Background, static_cast<graphics::Argb>(step));
    };
    for (int step = 2; history.Undo(document); --step)
        expect(step);
    for (int step = 1; history.Redo(document); ++step)
        expect(step);
    expect(3);
}

TEST(UndoHistory, TellsTheNameOfTheStepOnEitherSide) {
    Document document = DocumentOf(1);
    UndoHistory history;
    const auto sides = [&] {
        return std::string(history.UndoName()) + '|' + std::string(history.RedoName());
    };
    EXPECT_EQ(sides(), "|");
    for (const char* name : {"a", "b", "c"})
        Step(history, document, 1, name);
    EXPECT_EQ(sides(), "c|");
    for (const char* expected : {"b|c", "a|b", "|a"}) {
        history.Undo(document);
        EXPECT_EQ(sides(), expected);
    }
    history.Redo(document);
    EXPECT_EQ(sides(), "a|b");
    const UndoHistory::Place place = history.Here();
    Step(history, document, 2, "d");
    EXPECT_EQ(sides(), "d|");
    history.RollBack(place);
    EXPECT_EQ(sides(), "a|b");
    for (const char* expected : {"b|c", "c|"}) {
        history.Redo(document);
        EXPECT_EQ(sides(), expected);
    }
    history.ClearHistory();
    EXPECT_EQ(sides(), "|");
}

TEST(UndoHistory, Refuses5002SnapshotsWithNothingLost) {
    Document document = DocumentOf(1);
    UndoHistory history;
    for (int step = 1; step <= 5000; ++step)
        Step(history, document, step);
    EXPECT_THROW(history.CheckRoom(2), HistoryLimit);
    history.CheckRoom();
    Step(history, document, 5001);
    EXPECT_THROW(history.PushSnapshot(document, kName), HistoryLimit);
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

TEST(UndoHistory, BringsThePageOfTheStepInForce) {
    Document document = DocumentOf(1);
    UndoHistory history;
    Page artwork;
    artwork.Layers.resize(1);
    const auto draw = [&](int hue) {
        history.TruncateRedo();
        history.PushSnapshot(document, kName);
        document.Current().Layers[0].Hue = hue;
    };
    const auto state = [&] {
        return std::tuple(document.EditedSize, document.Current().Layers[0].Hue,
                          document.Sizes.size());
    };
    draw(1);
    history.PushSnapshot(document, kName, 16);
    document.SetArtwork(16, artwork);
    document.EditedSize = 16;
    draw(2);
    document.EditedSize = Family::kMaster;
    draw(3);

    using State = std::tuple<int, int, std::size_t>;
    document.EditedSize = 16;  // going about is no step
    const State way[] = {{0, 1, 1}, {16, 0, 1}, {0, 1, 0}, {0, 0, 0}};
    for (const State& before : way) {
        ASSERT_TRUE(history.Undo(document));
        EXPECT_EQ(state(), before);
    }
    const State back[] = {{0, 1, 0}, {16, 0, 1}, {16, 2, 1}, {0, 3, 1}};
    for (const State& after : back) {
        document.EditedSize = Family::kMaster;
        ASSERT_TRUE(history.Redo(document));
        EXPECT_EQ(state(), after);
    }
    EXPECT_TRUE(document.Modified);
}

}  // namespace
}  // namespace orbelle::document
