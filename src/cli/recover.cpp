#include "cli/recover.h"

#include <chrono>
#include <ctime>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <system_error>

#include "cli/words.h"
#include "cli/workspace.h"
#include "editing/recovery.h"
#include "formats/journal_file.h"
#include "formats/volf_store.h"
#include "graphics/path_text.h"
#include "graphics/state_folder.h"

namespace orbelle::cli {
namespace {

// 2026-11-22T01:40:03Z
std::string TimeText(std::int64_t milliseconds) {
    const std::time_t seconds = milliseconds / 1000;
    std::tm utc{};
    char text[64] = "";
#ifdef _WIN32
    const bool isKnown = gmtime_s(&utc, &seconds) == 0;
#else
    const bool isKnown = gmtime_r(&seconds, &utc) != nullptr;
#endif
    if (isKnown)
        std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &utc);
    return text;
}

void List(const std::vector<formats::FoundJournal>& journals, std::ostream& output) {
    using Json = nlohmann::ordered_json;
    for (std::size_t i = 0; i < journals.size(); ++i) {
        const document::Document& document = journals[i].Entry().Document;
        const Json json = {{"number", i},
                           {"path", graphics::Utf8Of(document.Path)},
                           {"time", TimeText(journals[i].Entry().Time)},
                           {"layers", document.Master.LayerCount()},
                           {"page", Json::array({document.Master.Width, document.Master.Height})}};
        output << json.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
    }
}

// What saves were writing into files that they could not replace when they were killed.
void ListCopies(std::ostream& output) {
    std::error_code error;
    for (const auto& copy :
         std::filesystem::directory_iterator(graphics::SaveCopiesFolder(), error)) {
        const nlohmann::ordered_json json = {{"copy", graphics::Utf8Of(copy.path())},
                                             {"bytes", copy.file_size(error)}};
        output << json.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace)
               << '\n';
    }
}

}  // namespace

void Recover(std::span<const std::string> words, std::ostream& output) {
    const bool isList = words.empty() || (words.size() == 1 && words[0] == "list");
    int number = 0;
    std::filesystem::path path;
    if (!isList) {
        try {
            Words arguments(words);
            number = arguments.Integer("N", 0);
            path = arguments.Path("PATH");
        } catch (const UsageError& error) {
            throw UsageError(std::string("--recover: ") + error.what());
        }
    }
    const std::vector<formats::FoundJournal> journals =
        formats::FindJournals(editing::JournalFolder());
    if (isList) {
        List(journals, output);
        ListCopies(output);
        return RequirePrinted(output);
    }
    if (number >= static_cast<int>(journals.size()))
        throw Failure("--recover " + std::to_string(number) + ": there are " +
                      std::to_string(journals.size()) + " documents to recover");
    formats::SaveDocument(path, journals[static_cast<std::size_t>(number)].Entry().Document);
}

}  // namespace orbelle::cli
