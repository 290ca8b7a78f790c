// orbelle-cli --recover: what the window kept safe when it ended before the work was saved.
#pragma once

#include <ostream>
#include <span>
#include <string>

namespace orbelle::cli {

// "list", or no word: prints a JSON object a line for each journal that was left behind, the
// newest first. "N PATH": writes the document of journal N as a .volf file; the journal stays.
// Throws UsageError, and Failure when there is no such journal or it can't be written.
void Recover(std::span<const std::string> words, std::ostream& output);

}  // namespace orbelle::cli
