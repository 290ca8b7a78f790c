#include "cli/recover.h"

#include <chrono>
#include <ctime>
#include <nlohmann/json.hpp>

#include "cli/words.h"
#include "cli/workspace.h"
#include "editing/recovery.h"
#include "formats/journal_file.h"
#include "formats/volf_store.h"

namespace orbelle::cli {
namespace {

// 2026-11-22T01:40:03Z
std::string TimeText(std::int64_t milliseconds) {
    const std::time_t seconds = milliseconds / 1000;
    std::tm utc{};
    char text[64] = "";
    if (gmtime_r(&seconds, &utc))
        std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &utc);
    return text;
}

void List(const std::vector<formats::FoundJournal>& journals, std::ostream& output) {
    using Json = nlohmann::ordered_json;
    for (std::size_t i = 0; i < journals.size(); ++i) {
        const document::Document& document = journals[i].Entry().Document;
        const Json json = {{"number", i},
                           {"path", document.Path.string()},
                           {"time", TimeText(journals[i].Entry().Time)},
                           {"layers", document.Master.LayerCount()},
                           {"page", Json::array({document.Master.Width, document.Master.Height})}};
        output << json.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
    }
    if (!output.flush())
        throw Failure("--recover: the output can't be written");
}

}  // namespace

void Recover(std::span<const std::string> words, std::ostream& output) {
    // An option without a word is an empty one.
    const bool isList = words.size() == 1 && (words[0].empty() || words[0] == "list");
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
    if (isList)
        return List(journals, output);
    if (number >= static_cast<int>(journals.size()))
        throw Failure("--recover " + std::to_string(number) + ": there are " +
                      std::to_string(journals.size()) + " documents to recover");
    formats::SaveDocument(path, journals[static_cast<std::size_t>(number)].Entry().Document);
}

}  // namespace orbelle::cli
