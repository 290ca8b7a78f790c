#include <string>

#include "decoding.h"

namespace orbelle::graphics {
namespace {

// What draws them is not there; the file is known for what it is all the same.
TEST(SvgDecoder, SaysThatThereIsNoneOnWindows) {
    const std::string drawing = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 2 1'/>";
    EXPECT_EQ(ProblemOf({drawing.begin(), drawing.end()}), "SVG drawings can't be read on Windows");
}

}  // namespace
}  // namespace orbelle::graphics
