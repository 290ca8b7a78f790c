#include "cli/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "cli/completion.h"
#include "cli/verb_table.h"

namespace orbelle::cli {
namespace {

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

// The options, as they are typed.
class Typed {
public:
    // With --each files and options come in any order; else all words from the first that is no
    // option on are left. Throws UsageError.
    Typed(const std::vector<std::string>& words, bool isEach);

    bool Has(const char* option) const { return app_.count(option) > 0; }
    // Throws UsageError when there are other options, or words are left.
    void RequireAlone(const char* option) const;

    std::vector<std::string> Help;
    std::vector<std::string> Recover;
    std::string Script;
    std::string Shell;
    std::string Jobs;
    bool KeepsGoing = false;
    bool IsJson = false;
    std::string Depfile;
    bool Watches = false;
    std::vector<std::string> Rest;

private:
    void RefuseUnknown() const;

    CLI::App app_;
};

Typed::Typed(const std::vector<std::string>& words, bool isEach) {
    app_.set_help_flag();  // ours takes a verb
    app_.add_option("-h,--help", Help)->expected(0, 1)->allow_extra_args(false);
    app_.add_flag("-v,--version");
    app_.add_option("--script", Script)->type_name("FILE");
    app_.add_flag("--each");
    app_.add_option("--jobs", Jobs)->type_name("N");
    app_.add_flag("--keep-going", KeepsGoing);
    app_.add_flag("--json", IsJson);
    app_.add_option("--depfile", Depfile)->type_name("FILE");
    app_.add_flag("--watch", Watches);
    app_.add_option("--recover", Recover)->expected(0, 2)->allow_extra_args(false);
    app_.add_option("--completion", Shell)->type_name("SHELL");
    app_.allow_extras(isEach);
    app_.prefix_command(!isEach);
    try {
        app_.parse(std::vector<std::string>(words.rbegin(), words.rend()));
    } catch (const CLI::ParseError& error) {
        throw UsageError(std::string(error.what()) + "; see orbelle-cli --help");
    }
    for (std::vector<std::string>* values : {&Help, &Recover})
        std::erase(*values, "");  // the library's word for none
    Rest = app_.remaining();
    RefuseUnknown();
}

void Typed::RefuseUnknown() const {
    std::vector<std::string> names;
    for (const CLI::Option* option : app_.get_options())
        names.push_back("--" + option->get_lnames()[0]);
    for (const std::string& word : Rest) {
        if (word.size() > 1 && word.starts_with('-'))
            throw UsageError(
                word + ": unknown option" +
                DidYouMean(word, std::vector<std::string_view>(names.begin(), names.end())));
        if (app_.get_prefix_command())
            break;  // the others are of the verbs
    }
}

void Typed::RequireAlone(const char* option) const {
    const auto isGiven = [](const CLI::Option* other) { return other->count() > 0; };
    if (!Rest.empty() || std::ranges::count_if(app_.get_options(), isGiven) > 1)
        throw UsageError(std::string(option) + " stands alone");
}

// From the options before "--" and the words after it.
Options::EachFile EachOf(const Typed& typed) {
    Options::EachFile each{
        .Files = typed.Rest, .Jobs = {}, .KeepsGoing = typed.KeepsGoing, .IsJson = typed.IsJson};
    if (each.Files.empty())
        throw UsageError("--each: FILE is missing");
    if (typed.Has("--jobs"))
        each.Jobs = Words({&typed.Jobs, 1}).Integer("--jobs", 1, kMaxJobs);
    return each;
}

// A question about the verb before it takes the place of the run.
void ReadVerbs(Options& options, std::vector<std::string> words) {
    const auto help = std::ranges::find_if(words, IsHelp);
    if (help != words.end()) {
        options.Task = Options::Task::Help;
        for (auto word = help; !options.HelpOn && word != words.begin();)
            options.HelpOn = FindVerb(*--word);
        if (!options.HelpOn)
            RequireVerb(words[0]);
    }
    options.Verbs = std::move(words);
}

// False when it is none of the tasks without a run.
bool ReadTask(Options& options, const Typed& typed) {
    if (typed.Has("--help")) {
        options.Task = Options::Task::Help;
        if (!typed.Help.empty())
            options.HelpOn = &RequireVerb(typed.Help[0]);
        if (!typed.Rest.empty())
            throw UsageError("--help is about one verb");
    } else if (typed.Has("--version")) {
        options.Task = Options::Task::Version;
        typed.RequireAlone("--version");
    } else if (typed.Has("--completion")) {
        options.Task = Options::Task::Completion;
        options.Shell = kShells[Words({&typed.Shell, 1}).Choice("--completion", kShells)];
        typed.RequireAlone("--completion");
    } else if (typed.Has("--recover")) {
        options.Task = Options::Task::Recover;
        options.Recover = typed.Recover;
        typed.RequireAlone("--recover");
    }
    return options.Task != Options::Task::Run;
}

}  // namespace

Options ReadOptions(std::span<const std::string> words) {
    const auto mark = std::ranges::find(words, "--");
    const std::vector<std::string> before(words.begin(), mark);
    std::vector<std::string> after(mark == words.end() ? mark : mark + 1, words.end());
    const bool isEach = std::ranges::find(before, "--each") != before.end();
    const Typed typed(before, isEach);
    Options options;
    if (ReadTask(options, typed))
        return options;

    if (typed.Has("--script"))
        options.Script = typed.Script;
    if (typed.Has("--depfile") && (typed.Depfile.empty() || typed.Depfile == "-"))
        throw UsageError("--depfile needs the name of a file");
    options.Depfile = typed.Depfile;
    options.Watches = typed.Watches;
    if (isEach) {
        options.Each = EachOf(typed);
        if (after.size() == 2 && after[0] == "--script" && !options.Script) {
            options.Script = after[1];
            after.clear();
        }
        if (after.empty() && !options.Script)
            throw UsageError("--each: \"--\" and verbs are missing after the files");
        if (std::ranges::count(typed.Rest, "-") + (options.Script == "-" ? 1 : 0) > 1)
            throw UsageError("standard input can be read once");
    } else {
        for (const char* option : {"--jobs", "--keep-going", "--json"}) {
            if (typed.Has(option))
                throw UsageError(std::string(option) + " goes with --each");
        }
        if (!typed.Rest.empty())
            after.assign(
                words.end() - static_cast<std::ptrdiff_t>(typed.Rest.size()) - (words.end() - mark),
                words.end());
    }
    ReadVerbs(options, std::move(after));
    if (options.Task == Options::Task::Run && options.Verbs.empty() != options.Script.has_value())
        throw UsageError("either verbs or --script FILE are needed; see orbelle-cli --help");
    return options;
}

std::string ProgramHelp() {
    return kHelp + VerbHelp() + '\n';
}

}  // namespace orbelle::cli
