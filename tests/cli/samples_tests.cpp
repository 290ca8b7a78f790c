// The sample documents are what their scripts draw.
#include "program_fixture.h"

namespace orbelle::cli {
namespace {

class SamplesTest : public ProgramTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(SamplesTest, ScriptDrawsTheDocumentBesideIt) {
    const std::filesystem::path samples = std::filesystem::absolute(ORBELLE_SAMPLES);
    const std::string name = GetParam() + ".volf";
    for (const char* picture : {"camera.png", "folder.png", "gear.png", "leaf.png"})
        std::filesystem::copy_file(samples / picture, folder / picture);

    EXPECT_EQ(Run("--script '" + graphics::Utf8Of(samples / (GetParam() + ".txt")) + "'"),
              kSuccess);
    const Outcome drawn =
        Run("open " + name + " write-page drawn.png info size 16 write-page drawn-16.png");
    std::filesystem::copy_file(samples / name, folder / name,
                               std::filesystem::copy_options::overwrite_existing);
    EXPECT_EQ(Run("open " + name + " write-page kept.png info size 16 write-page kept-16.png"),
              drawn);
    for (const char* size : {"", "-16"})
        EXPECT_EQ(Bytes("drawn" + std::string(size) + ".png"),
                  Bytes("kept" + std::string(size) + ".png"))
            << "scripts/make-samples.sh makes it again";
}

INSTANTIATE_TEST_SUITE_P(All, SamplesTest,
                         ::testing::Values("crystal-camera", "envelope", "glass-folder",
                                           "leaf-plate", "mirror-gear", "ok-badge",
                                           "speech-bubble"),
                         [](const auto& sample) {
                             std::string name = sample.param;
                             std::erase(name, '-');
                             return name;
                         });

}  // namespace
}  // namespace orbelle::cli
