#include "cli/completion.h"

#include <algorithm>
#include <sstream>
#include <vector>

#include "cli/verb_table.h"

namespace orbelle::cli {
namespace {

constexpr std::string_view kAnyFile = "*";
constexpr std::string_view kFolder = "/";

// A verb, or an option before them.
struct Entry {
    std::string Name;
    int Least = 0;           // so many words have to follow
    bool TakesMore = false;  // others may
    std::string Values;      // a blank between them
    std::string Files;       // extensions likewise, kAnyFile, kFolder
    std::string Help;
};

// "X Y X Y..." are four at least, what is in brackets need not be.
Entry EntryOf(const Verb& verb) {
    Entry entry{.Name = std::string(verb.Name),
                .TakesMore = verb.Arguments.find_first_of(".[") != std::string_view::npos,
                .Values = std::string(verb.Values),
                .Files = std::string(verb.Files),
                .Help = std::string(verb.Help.substr(0, verb.Help.find_first_of(":;(")))};
    entry.Help.resize(entry.Help.find_last_not_of(' ') + 1);
    std::istringstream words{std::string(verb.Arguments)};
    for (std::string word; words >> word;)
        entry.Least += word.starts_with('[') ? 0 : 1;
    return entry;
}

std::vector<Entry> Options() {
    std::string verbs;
    for (const Verb* verb : AllVerbs())
        verbs.append(verbs.empty() ? "" : " ").append(verb->Name);
    return {{"--help", 1, false, verbs, "", "what a verb does"},
            {"--version", 0, false, "", "", "print the version"},
            {"--script", 1, false, "-", "*", "verbs from a file"},
            {"--each", 1, true, "-", "*", "the verbs for each file"},
            {"--jobs", 1, false, "", "", "files at a time"},
            {"--keep-going", 0, false, "", "", "go on after a file that fails"},
            {"--json", 0, false, "", "", "an object for each file"},
            {"--depfile", 1, false, "", "*", "what each output was made of"},
            {"--watch", 0, false, "", "", "run again when a file changes"},
            {"--recover", 1, true, "list", "volf", "what was kept safe"},
            {"--completion", 1, false, "bash zsh fish", "", "a script for a shell"}};
}

std::vector<Entry> Verbs() {
    std::vector<Entry> entries;
    for (const Verb* verb : AllVerbs())
        entries.push_back(EntryOf(*verb));
    return entries;
}

std::string Names(const std::vector<Entry>& entries, const char* between) {
    std::string names;
    for (const Entry& entry : entries)
        names.append(names.empty() ? "" : between).append(entry.Name);
    return names;
}

std::string Replaced(std::string text, std::string_view what, const std::string& by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
        text.replace(at, what.size(), by);
    return text;
}

std::string Quoted(const std::string& text) {
    return '\'' + Replaced(text, "'", "'\\''") + '\'';
}

// A line for each that takes words. `line` has NAME, LEAST, MORE (1 or nothing), VALUES, FILES.
std::string Cases(const char* line) {
    std::vector<Entry> entries = Options();
    std::ranges::move(Verbs(), std::back_inserter(entries));
    std::string cases;
    for (const Entry& entry : entries) {
        std::string text = Replaced(line, "NAME", entry.Name);
        text = Replaced(text, "LEAST", std::to_string(entry.Least));
        text = Replaced(text, "MORE", entry.TakesMore ? "1" : "");
        text = Replaced(text, "VALUES", Quoted(entry.Values));
        cases += Replaced(text, "FILES", Quoted(entry.Files));
    }
    return cases;
}

// "NAME:HELP" or the like, each quoted.
std::string Described(const std::vector<Entry>& entries, const char* between) {
    std::string lines;
    for (const Entry& entry : entries)
        lines += "        " + Quoted(entry.Name + between + entry.Help) + '\n';
    return lines;
}

constexpr char kBash[] = R"---(# bash completion for orbelle-cli

_orbelle_cli_files() {
    local name extension
    while IFS= read -r name; do
        extension=${name##*.}
        if [[ -d $name || $files == '*' || " $files " == *" ${extension,,} "* ]]; then
            COMPREPLY+=("$name")
        fi
    done < <(compgen -f -- "$word")
    compopt -o filenames 2>/dev/null
}

_orbelle_cli() {
    local word=${COMP_WORDS[COMP_CWORD]} last= i least=0 more= values= files=
    COMPREPLY=()
    for ((i = COMP_CWORD - 1; i > 0; i--)); do
        case ${COMP_WORDS[i]} in
            --|@OPTIONS@|@VERBS@) last=${COMP_WORDS[i]}; break ;;
        esac
    done
    case $last in
@CASES@    esac
    local given=$((COMP_CWORD - i - 1))
    if ((given < least)) || [[ $more ]]; then
        [[ $files ]] && _orbelle_cli_files
        COMPREPLY+=($(compgen -W "$values" -- "$word"))
    fi
    ((given < least)) && return
    case $last in
        --each) COMPREPLY+=($(compgen -W '-- --jobs --keep-going --json --depfile --watch' -- "$word")) ;;
        ''|--*) COMPREPLY+=($(compgen -W '-- @OPTIONWORDS@' -- "$word")) ;;
    esac
    [[ $last == --each ]] || COMPREPLY+=($(compgen -W '@VERBWORDS@' -- "$word"))
}

complete -F _orbelle_cli orbelle-cli
)---";

constexpr char kZsh[] = R"---(#compdef orbelle-cli

_orbelle_cli() {
    local last= i least=0 more= values= files=
    local -a verbs options
    verbs=(
@VERBLINES@    )
    options=(
@OPTIONLINES@    )
    for ((i = CURRENT - 1; i > 1; i--)); do
        case ${words[i]} in
            (--|@OPTIONS@|@VERBS@) last=${words[i]}; break ;;
        esac
    done
    case $last in
@CASES@    esac
    local given=$((CURRENT - i - 1))
    if ((given < least)) || [[ -n $more ]]; then
        [[ -n $values ]] && compadd -- ${=values}
        case $files in
            ('') ;;
            ('*') _files ;;
            (/) _files -/ ;;
            (*) _files -g "*.(#i)(${files// /|})" ;;
        esac
    fi
    ((given < least)) && return
    case $last in
        (--each) compadd -- -- --jobs --keep-going --json --depfile --watch; return ;;
        (''|--*) _describe -o option options ;;
    esac
    _describe verb verbs
}

if [[ $funcstack[1] == _orbelle-cli ]]; then
    _orbelle_cli "$@"
else
    compdef _orbelle_cli orbelle-cli
fi
)---";

constexpr char kFish[] = R"---(# fish completion for orbelle-cli

function __orbelle_cli_complete
    set -l typed (commandline -opc)
    set -l last ''
    set -l given 0
    set -l least 0
    set -l more ''
    set -l values ''
    set -l files ''
    for i in (seq (count $typed) -1 2)
        if contains -- $typed[$i] -- @OPTIONWORDS@ @VERBWORDS@
            set last $typed[$i]
            set given (math (count $typed) - $i)
            break
        end
    end
    switch "$last"
@CASES@    end
    if test $given -lt $least -o -n "$more"
        test -n "$values"; and string split ' ' -- $values
        set -l word (commandline -ct)
        switch "$files"
            case ''
            case '\*'
                __fish_complete_path $word
            case /
                __fish_complete_directories $word
            case '*'
                set -l kinds (string replace -a ' ' '|' -- $files)
                __fish_complete_path $word | string match -ri "^.*(?:/|\.(?:$kinds))(?:\t.*)?\$"
        end
    end
    test $given -lt $least; and return
    switch "$last"
        case --each
            printf '%s\n' -- --jobs --keep-going --json --depfile --watch
            return
        case '' '--*'
            printf '%s\n' \
@OPTIONLINES@            --
    end
    printf '%s\n' \
@VERBLINES@            '' | string match -r '.+'
end

complete -c orbelle-cli -f -a '(__orbelle_cli_complete)'
)---";

std::string Filled(const char* script, const char* line, const char* between, const char* lineEnd) {
    std::string text = Replaced(script, "@CASES@", Cases(line));
    text = Replaced(text, "@VERBS@", Names(Verbs(), "|"));
    text = Replaced(text, "@OPTIONS@", Names(Options(), "|"));
    text = Replaced(text, "@VERBWORDS@", Names(Verbs(), " "));
    text = Replaced(text, "@OPTIONWORDS@", Names(Options(), " "));
    text = Replaced(text, "@VERBLINES@", Replaced(Described(Verbs(), between), "\n", lineEnd));
    return Replaced(text, "@OPTIONLINES@", Replaced(Described(Options(), between), "\n", lineEnd));
}

}  // namespace

std::string CompletionScript(std::string_view shell) {
    if (shell == "bash")
        return Filled(kBash, "        NAME) least=LEAST more=MORE values=VALUES files=FILES ;;\n",
                      ":", "\n");
    if (shell == "zsh")
        return Filled(kZsh, "        (NAME) least=LEAST more=MORE values=VALUES files=FILES ;;\n",
                      ":", "\n");
    return Filled(
        kFish,
        "        case NAME\n            set least LEAST; set more 'MORE'; set values VALUES; "
        "set files FILES\n",
        "\t", " \\\n");
}

}  // namespace orbelle::cli
