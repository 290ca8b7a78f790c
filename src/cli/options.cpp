#include "cli/options.h"

#include <algorithm>

#include "cli/completion.h"
#include "cli/verb_table.h"

namespace orbelle::cli {
namespace {

constexpr std::string_view kOptions[] = {"--help",    "--version", "--script",     "--recover",
                                         "--each",    "--jobs",    "--keep-going", "--json",
                                         "--depfile", "--watch",   "--completion"};

constexpr int kMaxJobs = 1024;

constexpr char kHelp[] =
    R"(The icon editor without a window:
  orbelle-cli VERB [ARG...] [VERB [ARG...]]...
  orbelle-cli --script FILE
  orbelle-cli --each FILE... [--jobs N] [--keep-going] [--json] -- VERB [ARG...]...
  orbelle-cli --recover [list | N PATH]
Before verbs, --script and --each also [--watch] [--depfile FILE]

Options:
  -h, --help [VERB]           print this, or what a verb does, with an example
  -v, --version               print the version
  --script FILE               read the verbs from FILE, one a line; '-': standard input
  --each FILE... --           run the verbs, or --script FILE, once for each file; '-': the files
                              named on standard input, one a line. In the words of the verbs {}
                              is the file, {name} its name, {stem} the name without extension,
                              {dir} its folder
  --jobs N                    so many files at a time; one for each core if not said
  --keep-going                a file that fails does not keep the others from being done
  --json                      print an object for each file, one a line
  --depfile FILE              when all went well write to FILE which files each output was made
                              of, as make and ninja read it
  --watch                     run, and run again when a file that is read changes, until
                              interrupted; with --each what is made of that file alone
  --recover [list | N PATH]   list what the window kept safe when it was killed, or write
                              number N to PATH as a document
  --completion bash|zsh|fish  print what completes the words of a command line

Examples:
  orbelle-cli open leaf.png style crystal save leaf.volf export leaf.ico
  orbelle-cli open logo.svg export-set icons windows macos linux web android ios
  orbelle-cli --each icons/*.svg -- open {} export {dir}/{stem}.ico
  orbelle-cli --watch open logo.svg export logo.ico

Verbs, run in order:)";

bool IsHelp(const std::string& word) {
    return word == "-h" || word == "--help";
}

const Verb& RequireVerb(const std::string& word) {
    const Verb* verb = FindVerb(word);
    if (!verb)
        throw UsageError(DescribeUnknownVerb(word));
    return *verb;
}

// The words of the program, taken one after the other.
class Reader {
public:
    explicit Reader(std::span<const std::string> words) : words_(words.begin(), words.end()) {}

    Options Read();

private:
    bool IsAtEnd() const { return taken_ == words_.size(); }
    const std::string& Next() const { return words_[taken_]; }
    std::string Take() { return words_[taken_++]; }
    std::string TakeOption();
    // The word of an option that needs one.
    std::string TakeValue(const std::string& option);
    void ReadOption(const std::string& option);
    void ReadFiles();
    void FinishEach();
    void ReadVerbs();
    void RequireEnd(const char* problem) const;

    std::vector<std::string> words_;
    std::size_t taken_ = 0;
    Options options_;
    Options::EachFile each_;
    bool isEach_ = false;
    std::string eachOption_;  // the last one that needs --each
};

// "--OPTION=VALUE" are two words.
std::string Reader::TakeOption() {
    std::string option = Take();
    const std::size_t equals = option.find('=');
    if (option.starts_with("--") && equals != std::string::npos) {
        words_[--taken_] = option.substr(equals + 1);
        option.resize(equals);
    }
    return option;
}

std::string Reader::TakeValue(const std::string& option) {
    if (IsAtEnd() || Next().empty())
        throw UsageError(option + " needs a word after it; see orbelle-cli --help");
    return Take();
}

void Reader::RequireEnd(const char* problem) const {
    if (!IsAtEnd())
        throw UsageError(problem);
}

void Reader::ReadOption(const std::string& option) {
    if (IsHelp(option)) {
        options_.Task = Options::Task::Help;
        if (!IsAtEnd())
            options_.HelpOn = &RequireVerb(Take());
        RequireEnd("--help is about one verb");
    } else if (option == "-v" || option == "--version") {
        options_.Task = Options::Task::Version;
        RequireEnd("--version stands alone");
    } else if (option == "--completion") {
        options_.Task = Options::Task::Completion;
        const std::string shell = TakeValue(option);
        options_.Shell = kShells[Words({&shell, 1}).Choice("--completion", kShells)];
        RequireEnd("--completion stands alone");
    } else if (option == "--recover") {
        options_.Task = Options::Task::Recover;
        while (!IsAtEnd() && options_.Recover.size() < 2)
            options_.Recover.push_back(Take());
        RequireEnd("--recover stands alone");
    } else if (option == "--each") {
        ReadFiles();
    } else if (option == "--jobs") {
        const std::string count = TakeValue(option);
        each_.Jobs = Words({&count, 1}).Integer("--jobs", 1, kMaxJobs);
        eachOption_ = option;
    } else if (option == "--keep-going") {
        each_.KeepsGoing = true;
        eachOption_ = option;
    } else if (option == "--json") {
        each_.IsJson = true;
        eachOption_ = option;
    } else if (option == "--script") {
        options_.Script = TakeValue(option);
    } else if (option == "--depfile") {
        options_.Depfile = TakeValue(option);
        if (options_.Depfile == "-")
            throw UsageError("--depfile needs the name of a file");
    } else if (option == "--watch") {
        options_.Watches = true;
    } else {
        throw UsageError(option + ": unknown option" + DidYouMean(option, kOptions));
    }
}

void Reader::ReadFiles() {
    isEach_ = true;
    while (!IsAtEnd() && (Next() == "-" || !Next().starts_with('-')))
        each_.Files.push_back(Take());
    if (each_.Files.empty())
        throw UsageError("--each: FILE is missing");
}

// Between the options and the verbs.
void Reader::FinishEach() {
    if (!isEach_ && !eachOption_.empty())
        throw UsageError(eachOption_ + " goes with --each");
    if (!isEach_)
        return;
    if (!IsAtEnd() && Next().starts_with("--script"))
        ReadOption(TakeOption());
    if (options_.Task == Options::Task::Run && IsAtEnd() && !options_.Script)
        throw UsageError("--each: \"--\" and verbs are missing after the files");
    if (std::ranges::count(each_.Files, "-") + (options_.Script == "-" ? 1 : 0) > 1)
        throw UsageError("standard input can be read once");
    options_.Each = each_;
}

// A question about the verb before it takes the place of the run.
void Reader::ReadVerbs() {
    options_.Verbs.assign(words_.begin() + static_cast<std::ptrdiff_t>(taken_), words_.end());
    const auto help = std::ranges::find_if(options_.Verbs, IsHelp);
    if (help == options_.Verbs.end())
        return;
    options_.Task = Options::Task::Help;
    for (auto word = help; !options_.HelpOn && word != options_.Verbs.begin();)
        options_.HelpOn = FindVerb(*--word);
    if (!options_.HelpOn)
        RequireVerb(options_.Verbs[0]);
}

Options Reader::Read() {
    while (!IsAtEnd() && Next().size() > 1 && Next()[0] == '-' && Next() != "--")
        ReadOption(TakeOption());
    if (!IsAtEnd() && Next() == "--")
        Take();
    FinishEach();
    if (options_.Task == Options::Task::Run)
        ReadVerbs();
    if (options_.Task == Options::Task::Run &&
        options_.Verbs.empty() != options_.Script.has_value())
        throw UsageError("either verbs or --script FILE are needed; see orbelle-cli --help");
    return std::move(options_);
}

}  // namespace

Options ReadOptions(std::span<const std::string> words) {
    return Reader(words).Read();
}

std::string ProgramHelp() {
    return kHelp + VerbHelp() + '\n';
}

}  // namespace orbelle::cli
