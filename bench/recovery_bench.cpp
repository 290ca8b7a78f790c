// Unsaved work: what the hand waits for, what the thread does, and how long it takes to come back.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "editing/recovery.h"
#include "editor_page.h"
#include "formats/journal.h"
#include "graphics/file_io.h"
#include "support/temporary_folder.h"

namespace orbelle::bench {
namespace {

class Memory : public formats::JournalSource {
public:
    explicit Memory(std::vector<std::uint8_t> bytes) : bytes_(std::move(bytes)) {}

    std::uint64_t Size() override { return bytes_.size(); }
    std::vector<std::uint8_t> Read(std::uint64_t from, std::uint64_t count) override {
        const auto begin = bytes_.begin() + static_cast<std::ptrdiff_t>(from);
        return {begin, begin + static_cast<std::ptrdiff_t>(count)};
    }

private:
    std::vector<std::uint8_t> bytes_;
};

// One of so many layers has changed.
void JournalAppend(benchmark::State& state) {
    document::Document document =
        MakeDocument(Content::Icon, 512, static_cast<int>(state.range(0)));
    formats::JournalEncoder encoder;
    encoder.Append(document, 0);
    graphics::Argb color = 0xFF000000;
    for (auto _ : state) {
        document.Master.Layers[0].Image.SetPixel(3, 3, ++color);
        benchmark::DoNotOptimize(encoder.Append(document, 0));
    }
}
BENCHMARK(JournalAppend)->Arg(1)->Arg(10)->Arg(50)->Unit(benchmark::kMillisecond);

void JournalRead(benchmark::State& state) {
    const document::Document document =
        MakeDocument(Content::Icon, 512, static_cast<int>(state.range(0)));
    Memory memory(formats::JournalEncoder().Append(document, 0));
    for (auto _ : state)
        benchmark::DoNotOptimize(formats::ReadJournal(memory));
}
BENCHMARK(JournalRead)->Arg(10)->Unit(benchmark::kMillisecond);

// All that a command pays for being noted.
void RecoveryNote(benchmark::State& state) {
    EditorPage page(static_cast<int>(state.range(0)), 0);
    page.editor.Document.Modified = true;
    // A folder that can't be made.
    const testing::TemporaryFolder folder;
    graphics::WriteFile(folder / "file", {});
    editing::Recovery recovery(folder / "file" / "journals", [](const std::string&) {});
    editing::Changes changes;
    changes.Pixels = true;
    for (auto _ : state)
        recovery.Note(page.editor, changes);
}
BENCHMARK(RecoveryNote)->Arg(10)->Arg(50);

}  // namespace
}  // namespace orbelle::bench
