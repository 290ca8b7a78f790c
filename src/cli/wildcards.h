// Patterns like *.png on the command line.
#pragma once

#include <string>
#include <vector>

namespace orbelle::cli {

// The files that a word of the command line stands for: the word itself where the shell has put
// names in the place of patterns already. Elsewhere '*' and '?' in a path's last part are for the
// files, no folders, of such names, sorted; a pattern without any is the name of a file.
std::vector<std::string> FilesMeantBy(const std::string& word);

}  // namespace orbelle::cli
