// Every allocation and every file operation of a command fails once, and once with all that follow.
// Whatever fails, document, history and files are as they were before the command, the user gets
// words, and the next command works as if nothing had happened.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "editing/adjust_sliders.h"
#include "editing/clipboard_commands.h"
#include "editing/document_commands.h"
#include "editing/export_commands.h"
#include "editing/give_up.h"
#include "editing/layer_bar.h"
#include "editing/layer_commands.h"
#include "editing/page_commands.h"
#include "editing/run.h"
#include "editing/scene_input.h"
#include "editing/selection_commands.h"
#include "editing/size_commands.h"
#include "editing/stack_commands.h"
#include "editing/style_commands.h"
#include "editing/tool_palette.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "faults/injection.h"
#include "support/editor_account.h"
#include "support/random_pictures.h"
#include "support/temporary_folder.h"

namespace orbelle::testing {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using editing::Adjustment;
using editing::Editor;
using editing::Tool;
using graphics::Bitmap;

constexpr int kPageSide = 24;
constexpr int kSceneSide = 40;
constexpr float kPageOnScene = (kSceneSide - kPageSide) / 2;

Bitmap Picture(int width, int height, unsigned seed) {
    std::mt19937 random(seed);
    return RandomPicture(random, width, height);
}

// An editor with all that stands around it.
class Desk : public editing::EditorObserver, public editing::Clipboard {
public:
    Desk() {
        editor.View.SceneWidth = editor.View.SceneHeight = kSceneSide;
        editor.Tools.Colors = {0xFF336699, 0xFFC08040};
    }

    // The same state, composed.
    Desk(const Desk& other) : editing::EditorObserver(other), editing::Clipboard(other) {
        static_cast<editing::EditorState&>(editor) = other.editor;
        editor.History = other.editor.History;
        editor.ClipboardLayer = other.editor.ClipboardLayer;
        picture_ = other.picture_;
        text_ = other.text_;
        editor.Changed.Pixels = true;
        Do([](Editor&) {});
    }
    Desk& operator=(const Desk&) = delete;

    void Do(const editing::Command& command) {
        const editing::Outcome outcome = Run(editor, command);
        ASSERT_FALSE(outcome.Failed()) << outcome.Problem();
    }

    void Changed(const editing::Changes&) override { ++Told; }
    void Put(const Bitmap& picture, const std::string& text) override {
        picture_ = picture;
        text_ = text;
    }
    bool HasPicture() override { return !picture_.IsEmpty(); }
    Bitmap Picture() override { return picture_; }
    std::string Text() override { return text_; }

    // What a paste would bring in.
    std::string AccountOfClipboard() const {
        return "clipboard " + AccountOf(picture_) + ' ' + text_ + ' ' +
               (editor.ClipboardLayer ? AccountOf(editor.ClipboardLayer->Image) : "nothing");
    }

    Editor editor{*this, *this};
    int Told = 0;

private:
    Bitmap picture_;
    std::string text_;
};

// Permissions, target of a link, and contents, by name.
using Files = std::map<std::string, std::tuple<fs::perms, std::string, std::string>>;

// Of the pictures that an icon's export leaves in the cache only unfinished ones count.
Files FilesIn(const fs::path& folder) {
    Files files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).string();
        if (entry.is_directory() || name.starts_with("cache/Sizes/temp"))
            continue;
        std::ifstream stream(entry.path(), std::ios::binary);
        files[name] = {entry.status().permissions(),
                       entry.is_symlink() ? fs::read_symlink(entry.path()).string() : "",
                       std::string(std::istreambuf_iterator<char>(stream), {})};
    }
    return files;
}

void PutBack(const fs::path& folder, const Files& files) {
    const Files now = FilesIn(folder);
    if (now == files)
        return;
    for (const auto& [name, unused] : now)
        fs::remove(folder / name);
    for (const auto& [name, file] : files) {
        const auto& [permissions, linkTo, bytes] = file;
        if (linkTo.empty()) {
            std::ofstream(folder / name, std::ios::binary) << bytes;
            fs::permissions(folder / name, permissions);
        } else {
            fs::create_symlink(linkTo, folder / name);
        }
    }
}

struct Step {
    editing::Command Work;
    bool IsDuringDrag = false;
};
using Steps = std::vector<Step>;

struct Scenario {
    const char* Name;
    Steps (*Work)(const fs::path& file);
    const char* File = "";
    void (*Prepare)(Desk& desk) = [](Desk&) {};
};

void PrintTo(const Scenario& scenario, std::ostream* out) {
    *out << scenario.Name;
}

// How a gesture looks when it is given up before a step, and then done again from the start.
struct Course {
    std::string GivenUp;
    std::string PicturesGivenUp;
    std::string ClipboardGivenUp;
    Files FilesGivenUp;
    std::string Repeated;
    Files FilesRepeated;
};

std::string AccountOfAll(const Desk& desk) {
    return AccountOf(desk.editor) + AccountOfPictures(desk.editor) + desk.AccountOfClipboard();
}

editing::Outcome Take(Editor& editor, const Step& step) {
    return step.IsDuringDrag ? RunDuringDrag(editor, step.Work) : Run(editor, step.Work);
}

class CommandFaults : public ::testing::TestWithParam<Scenario> {
protected:
    CommandFaults() {
        setenv("XDG_CACHE_HOME", (folder_ / "cache").c_str(), 1);
        MakeDocument();
        MakeFiles();
        GetParam().Prepare(desk_);
        steps_ = GetParam().Work(folder_ / GetParam().File);
        filesBefore_ = FilesIn(folder_.Path());
        for (std::size_t count = 0; count <= steps_.size(); ++count)
            courses_.push_back(CourseOf(count));
    }

    // Gives how many operations failed, one after the other.
    int FailEach(Fault fault, Extent extent);

    bool touchesFiles_ = true;

private:
    // Three layers, one of them cut by a plate, and steps to undo and to redo.
    void MakeDocument() {
        desk_.Do([](Editor& editor) { editing::NewDocument(editor, kPageSide, kPageSide); });
        desk_.Do([](Editor& editor) { ImportPicture(editor, Picture(16, 14, 1)); });
        desk_.Do(editing::Ios);
        desk_.Do([](Editor& editor) { ImportPicture(editor, Picture(10, 12, 2)); });
        desk_.Do([](Editor& editor) {
            editor.View.Zoom = 1;
            editor.Zoom.IsAnimated = false;
            SetPageBackground(editor, 0xFF808080);
        });
        desk_.Do(editing::HotState);
        desk_.Do(editing::DropShadow);
        desk_.Do(editing::Undo);
    }

    // One of every kind, and some that are in the way.
    void MakeFiles() {
        for (const char* kind : {"ico", "cur", "png", "gif", "jpg", "bmp", "volf"}) {
            const fs::path picture = folder_ / ("picture."s + kind);
            if (const auto format = formats::FindExportFormat(picture))
                desk_.Do([&](Editor& editor) { ExportTo(editor, picture, *format); });
            else
                Desk(desk_).Do([&](Editor& editor) { SaveTo(editor, picture); });
            std::ofstream(folder_ / ("old."s + kind)) << "old contents of " << kind;
        }
        fs::permissions(folder_ / "old.volf", fs::perms::owner_read | fs::perms::owner_write);
        fs::create_symlink("old.volf", folder_ / "link.volf");
        fs::copy_file(folder_ / "picture.volf", folder_ / "damaged.volf");
        fs::resize_file(folder_ / "damaged.volf", fs::file_size(folder_ / "picture.volf") - 20);
        fs::remove_all(folder_ / "cache");
    }

    // Of a gesture whose first `count` steps went well.
    Course CourseOf(std::size_t count) {
        Course course;
        Desk desk(desk_);
        for (std::size_t i = 0; i < count; ++i)
            EXPECT_EQ(Take(desk.editor, steps_[i]).Problem(), "");
        if (count < steps_.size())
            desk.Do([](Editor&) {});
        course.GivenUp = AccountOf(desk.editor);
        course.PicturesGivenUp = AccountOfPictures(desk.editor);
        course.ClipboardGivenUp = desk.AccountOfClipboard();
        course.FilesGivenUp = FilesIn(folder_.Path());
        for (const Step& step : steps_)
            EXPECT_EQ(Take(desk.editor, step).Problem(), "");
        course.Repeated = AccountOfAll(desk);
        course.FilesRepeated = FilesIn(folder_.Path());
        PutBack(folder_.Path(), filesBefore_);
        return course;
    }

    void ExpectGivenUp(Desk& desk, std::size_t count) {
        const Course& course = courses_[count];
        EXPECT_EQ(AccountOf(desk.editor), course.GivenUp);
        // A step that puts something there may fail after that, when the page is composed.
        const std::string clipboard = desk.AccountOfClipboard();
        EXPECT_TRUE(clipboard == course.ClipboardGivenUp ||
                    (count < steps_.size() && clipboard == courses_[count + 1].ClipboardGivenUp))
            << clipboard;
        EXPECT_EQ(FilesNow(), course.FilesGivenUp);
        std::string canvas;
        desk.Do([&](Editor& editor) { canvas = AccountOf(editor.Canvas); });
        EXPECT_THAT(course.PicturesGivenUp, ::testing::HasSubstr(canvas));
        EXPECT_EQ(AccountOfPictures(desk.editor), course.PicturesGivenUp);
    }

    Files FilesNow() const { return touchesFiles_ ? FilesIn(folder_.Path()) : filesBefore_; }

    TemporaryFolder folder_;
    Desk desk_;
    Steps steps_;
    Files filesBefore_;
    std::vector<Course> courses_;
};

// Commands with thousands of operations are sampled.
long Next(long n) {
    return n + 1 + std::max(0L, n - 40) / 4;
}

int CommandFaults::FailEach(Fault fault, Extent extent) {
    int tried = 0;
    for (long n = 1; !HasFailure(); n = Next(n)) {
        if (touchesFiles_)
            PutBack(folder_.Path(), filesBefore_);
        SCOPED_TRACE("operation " + std::to_string(n) + " of kind " +
                     std::to_string(static_cast<int>(fault)) +
                     (extent == Extent::AllFrom ? " and all after it" : ""));
        Desk desk(desk_);
        desk.Told = 0;
        std::size_t count = 0;
        editing::Outcome outcome;
        bool hasFailedOne = false;
        {
            const Injection injection(fault, extent, n);
            while (count < steps_.size()) {
                outcome = Take(desk.editor, steps_[count]);
                if (outcome.Failed())
                    break;
                ++count;
            }
            hasFailedOne = injection.HasFailedOne();
        }
        SCOPED_TRACE("step " + std::to_string(count));
        EXPECT_EQ(desk.Told, static_cast<int>(std::min(count + 1, steps_.size())));
        ExpectGivenUp(desk, count);
        if (!hasFailedOne)
            break;
        ++tried;
        const char* const words = fault == Fault::FileOperation
                                      ? "Input/output error"
                                      : "There is not enough memory.|Cannot allocate memory";
        if (outcome.Failed()) {
            EXPECT_THAT(outcome.Problem(), ::testing::ContainsRegex(words));
        }
        for (const Step& step : steps_)
            EXPECT_EQ(Take(desk.editor, step).Problem(), "");
        EXPECT_EQ(AccountOfAll(desk), courses_[count].Repeated);
        EXPECT_EQ(FilesNow(), courses_[count].FilesRepeated);
    }
    return tried;
}

TEST_P(CommandFaults, LeaveEverythingAsItWas) {
    const int files = FailEach(Fault::FileOperation, Extent::One);
    RecordProperty("files", files);
    // Several files can't be put back when nothing works any more.
    if (std::string_view(GetParam().Name) != "ExportSet")
        FailEach(Fault::FileOperation, Extent::AllFrom);
    touchesFiles_ = files > 0;
    RecordProperty("new", FailEach(Fault::New, Extent::One));
    FailEach(Fault::New, Extent::AllFrom);
    if (!CanFail(Fault::Malloc))
        return;
    RecordProperty("malloc", FailEach(Fault::Malloc, Extent::One));
    FailEach(Fault::Malloc, Extent::AllFrom);
}

template <void (*kCommand)(Editor&)>
Steps Simply(const fs::path&) {
    return {{kCommand}};
}

template <void (*kPress)(Editor&), void (*kChange)(Editor&), void (*kRelease)(Editor&)>
Steps Slide(const fs::path&) {
    return {{kPress}, {kChange, true}, {kRelease, true}};
}

Steps Open(const fs::path& path) {
    return {{[path](Editor& editor) { OpenFile(editor, path); }}};
}

Steps OpenAll(const fs::path& path) {
    return {{[path](Editor& editor) { OpenIconFamily(editor, path); }}};
}

Steps MakeAndDrop(const fs::path&) {
    return {{[](Editor& editor) { EditSize(editor, 24); }},
            {[](Editor& editor) { DropArtwork(editor, 24); }}};
}

Steps Import(const fs::path& path) {
    return {{[path](Editor& editor) { ImportFile(editor, path); }}};
}

Steps Save(const fs::path& path) {
    return {{[path](Editor& editor) { SaveTo(editor, path); }}};
}

Steps Export(const fs::path& path) {
    return {{[path](Editor& editor) { ExportTo(editor, path, *formats::FindExportFormat(path)); }}};
}

// One new file and one in the place of another.
Steps WriteSet(const fs::path& folder) {
    return {{[folder](Editor&) {
        formats::WriteSet(folder, {formats::IconSet::Ios,
                                   {{"old.png", {'n', 'e', 'w'}}, {"in/b", {'n', 'e', 'w'}}}});
    }}};
}

editing::Pointer OnPage(float x, float y, int button = 1) {
    return {button, 0, x + kPageOnScene + 0.5F, y + kPageOnScene + 0.5F};
}

Step Press(float x, float y, int button = 1) {
    return {[=](Editor& editor) { PressScene(editor, OnPage(x, y, button)); }};
}

// A press, moves and a release at the last point.
Steps Drag(const std::vector<graphics::PointF>& points) {
    Steps steps = {Press(points.front().X, points.front().Y)};
    for (const graphics::PointF point : points)
        steps.push_back(
            {[=](Editor& editor) { MoveScene(editor, OnPage(point.X, point.Y)); }, true});
    const graphics::PointF last = points.back();
    steps.push_back({[=](Editor& editor) { ReleaseScene(editor, OnPage(last.X, last.Y)); }, true});
    return steps;
}

Steps DragOverPage(const fs::path&) {
    return Drag({{3, 3}, {9, 7}, {7, 12}});
}

template <Tool kTool>
void Use(Desk& desk) {
    desk.Do([](Editor& editor) {
        editor.Tools.InUse = kTool;
        editor.Sliders.BrushSize.Value = 5;
        editor.Sliders.BrushOpacity.Value = 50;
    });
}

void SelectPixels(Desk& desk) {
    desk.Do([](Editor& editor) {
        editor.Selection.Start();
        editor.Selection.AddFrame({2, 3, 6, 6}, document::FrameShape::Ellipse);
    });
}

void SelectNoLayer(Desk& desk) {
    desk.Do([](Editor& editor) { editor.Page().SelectedLayer = document::kNoLayer; });
}

// The one that is gone to last is 8.
void MakeTwoSizes(Desk& desk) {
    for (const int size : {24, 8})
        desk.Do([=](Editor& editor) { EditSize(editor, size); });
}

void CopyLayer(Desk& desk) {
    desk.Do(editing::CopyToClipboard);
}

void CopyElsewhere(Desk& desk) {
    desk.Put(Picture(9, 7, 3), "text");
}

const Scenario kScenarios[] = {
    {"OpenDocument", Open, "picture.volf"},
    {"OpenDamagedDocument", Open, "damaged.volf"},
    {"OpenPng", Open, "picture.png"},
    {"OpenGif", Open, "picture.gif"},
    {"OpenJpeg", Open, "picture.jpg"},
    {"OpenBmp", Open, "picture.bmp"},
    {"OpenIcon", Open, "picture.ico"},
    {"ImportPicture", Import, "picture.png"},
    {"ImportDocument", Import, "picture.volf"},
    {"New", Simply<[](Editor& editor) { NewDocument(editor, 12, 16); }>},

    {"SaveNewFile", Save, "new.volf"},
    {"SaveOverFile", Save, "old.volf"},
    {"SaveOverLink", Save, "link.volf"},
    {"ExportIcon", Export, "old.ico"},
    {"ExportPng", Export, "old.png"},
    {"ExportGif", Export, "old.gif"},
    {"ExportJpeg", Export, "old.jpg"},
    {"ExportBmp", Export, "old.bmp"},
    {"ExportPointer", Export, "old.cur"},
    {"ExportSet", WriteSet, ""},

    {"DisabledState", Simply<editing::DisabledState>},
    {"HotState", Simply<editing::HotState>},
    {"Fresh", Simply<editing::Fresh>},
    {"Ios", Simply<editing::Ios>},
    {"OrigamiVertical", Simply<[](Editor& editor) { Origami(editor, filters::Fold::Vertical); }>},
    {"OrigamiHorizontal",
     Simply<[](Editor& editor) { Origami(editor, filters::Fold::Horizontal); }>},
    {"Mac", Simply<editing::Mac>},
    {"Vista", Simply<editing::Vista>},
    {"Crystal", Simply<editing::Crystal>},
    {"Blur", Simply<editing::Blur>},
    {"Sharpen", Simply<editing::Sharpen>},
    {"Irradiation", Simply<editing::Irradiation>},
    {"Shade", Simply<editing::Shade>},
    {"Reflection", Simply<editing::Reflection>},
    {"DropShadow", Simply<editing::DropShadow>},

    {"Undo", Simply<editing::Undo>},
    {"Redo", Simply<editing::Redo>},
    {"Copy", Simply<editing::CopyToClipboard>},
    {"CutLayer", Simply<editing::CutToClipboard>, "", CopyLayer},
    {"CutSelection", Simply<editing::CutToClipboard>, "", SelectPixels},
    {"PasteOwn", Simply<editing::PasteFromClipboard>, "", CopyLayer},
    {"PasteForeign", Simply<editing::PasteFromClipboard>, "", CopyElsewhere},
    {"PasteFitted", Simply<[](Editor& editor) { PastePicture(editor, Picture(90, 70, 3), true); }>},
    {"DeleteSelection", Simply<editing::DeleteSelection>, "", SelectPixels},
    {"InvertSelection", Simply<editing::InvertSelection>, "", SelectPixels},

    {"AddLayer", Simply<editing::PressAddLayer>},
    {"RemoveLayer", Simply<editing::PressRemoveLayer>},
    {"HideLayer", Simply<editing::PressHideLayer>},
    {"MergeDown", Simply<editing::PressMergeDown>},
    {"ToBack", Simply<[](Editor& editor) { SetLayerOrder(editor, editing::LayerOrder::ToBack); }>},
    {"Rotate",
     Simply<[](Editor& editor) { FlipRotateLayer(editor, editing::FlipRotate::Rotate90Cw); }>},
    {"Background", Simply<[](Editor& editor) { SetPageBackground(editor, 0x80FF0000); }>},
    {"PageSize", Slide<editing::PressPageSize, [](Editor& editor) { ChangePageWidth(editor, 17); },
                       editing::ReleasePageSize>},
    {"Nudge", Simply<[](Editor& editor) { KeyDownScene(editor, editing::SceneKey::Right); }>},
    {"MakeArtwork",
     Simply<[](Editor& editor) { MakeArtwork(editor, 16, filters::SizeRecipe::Snapped); }>},
    {"ReplaceArtwork",
     Simply<[](Editor& editor) { MakeArtwork(editor, 8, filters::SizeRecipe::FillOutline); }>, "",
     MakeTwoSizes},
    {"GoToSize", Simply<[](Editor& editor) { GoToPage(editor, 24); }>, "", MakeTwoSizes},
    {"GoToMaster", Simply<[](Editor& editor) { GoToPage(editor, document::Family::kMaster); }>, "",
     MakeTwoSizes},
    {"DropArtwork", MakeAndDrop, "", MakeTwoSizes},
    {"UndoOfASize", Simply<editing::Undo>, "", MakeTwoSizes},
    {"SaveFamily", Save, "old.volf", MakeTwoSizes},
    {"ExportFamily", Export, "old.ico", MakeTwoSizes},
    {"OpenAllOfAnIcon", OpenAll, "picture.ico"},
    {"ZoomIn", Simply<editing::ZoomIn>},

    {"MoveLayer", DragOverPage, "", SelectNoLayer},
    {"FloatSelection", DragOverPage, "", SelectPixels},
    {"Pencil", DragOverPage, "", Use<Tool::Pencil>},
    {"FilledEllipse", DragOverPage, "", Use<Tool::FilledEllipse>},
    {"PencilEraser", DragOverPage, "", Use<Tool::PencilEraser>},
    {"BrushEraser", DragOverPage, "", Use<Tool::BrushEraser>},
    {"ColorPick", DragOverPage, "", Use<Tool::ColorPick>},
    {"SelectEllipse", DragOverPage, "", Use<Tool::SelectEllipse>},
    {"SelectPolygon",
     [](const fs::path&) {
         return Steps{Press(2, 2), Press(12, 3), Press(6, 13), Press(6, 13, 2)};
     },
     "", Use<Tool::SelectPolygon>},
    {"Opacity", Slide<editing::PressOpacity, [](Editor& editor) { ChangeOpacity(editor, 30); },
                      editing::ReleaseOpacity>},
    {"Hue", Slide<[](Editor& editor) { PressAdjustment(editor, Adjustment::Hue); },
                  [](Editor& editor) { ChangeAdjustment(editor, Adjustment::Hue, 30); },
                  [](Editor& editor) { ReleaseAdjustment(editor, Adjustment::Hue); }>},
    {"Cancel", Slide<editing::PressOpacity, [](Editor& editor) { ChangeOpacity(editor, 30); },
                     editing::CancelDrag>},
    {"Scale", Slide<editing::PressScale, [](Editor& editor) { ChangeScale(editor, 60); },
                    editing::ReleaseScale>},
};

INSTANTIATE_TEST_SUITE_P(Every, CommandFaults, ::testing::ValuesIn(kScenarios),
                         [](const auto& scenario) { return scenario.param.Name; });

}  // namespace
}  // namespace orbelle::testing
