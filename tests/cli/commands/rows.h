// Tables of what commands do: scripts of verbs, run in this process, and what they leave.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "cli/workspace.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"

namespace orbelle::cli {

struct Row {
    const char* Behaviour;
    std::string Script;  // verbs one after the other, as after the program's name
    // "QUESTION ANSWER, QUESTION ANSWER...". Questions, where N is a layer or `page`:
    //   undo, page/width...         what `info` tells, without brackets; N/rect is layers/N/rect
    //   widths                      the layers' image widths from the bottom up
    //   N/argb, N/pixels, N/size    all pixels; runs of pixels that aren't 0; width and height
    //   N@X,Y                       one pixel
    //   N/alphas@X,Y~T              as many alphas as the answer has, T more or less, to the right;
    //   N/reds|X,Y~T                reds, -1 where nothing is painted, downwards
    //   N/runs, selection/runs      a region, as runs
    //   slider/NAME, title
    //   error, notes                of the last verb, of all; commas are semicolons there. Without
    //                               the question there must be none
    // `clipboard` is a layer, too.
    std::string Facts;
};

// A layer of a document that rows open.
struct Placed {
    graphics::Bitmap Image;
    graphics::RectF Rect;  // of size 0: that of the picture
    float Opacity = 1;
    bool Visible = true;
};

class RowsTest : public ::testing::Test {
protected:
    RowsTest();
    ~RowsTest() override;

    // Each row in a workspace of its own. The page must be what a composition from nothing gives,
    // and the steps lead back to where they began and to their end again.
    void Check(const std::vector<Row>& rows) { Check("", "", rows); }
    // Their scripts and facts go on from these.
    void Check(const std::string& script, const std::string& facts, const std::vector<Row>& rows);

    // Files for scripts.
    static void Write(const std::string& name, const graphics::Bitmap& picture);
    static void WriteDocument(const std::string& name, int width, int height,
                              const std::vector<Placed>& layers);

    testing::TemporaryFolder folder;  // the current one

private:
    static void Check(const Row& row);

    std::filesystem::path before_;
};

// Runs the verbs; the text of the failure, empty when there is none.
std::string RunScript(Workspace& workspace, const std::string& script);

std::vector<std::string> Split(const std::string& text, const std::string& separator);

// All pixels, row by row.
std::string Argbs(const graphics::Bitmap& picture);

}  // namespace orbelle::cli
