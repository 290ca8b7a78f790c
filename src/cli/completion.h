// What a shell may put behind the words that were typed.
#pragma once

#include <string>
#include <string_view>

namespace orbelle::cli {

inline constexpr std::string_view kShells[] = {"bash", "zsh", "fish"};

// A script of that shell, one of kShells: it completes verbs and options, the words that verbs take
// and the names of files of the kinds that they take.
std::string CompletionScript(std::string_view shell);

}  // namespace orbelle::cli
