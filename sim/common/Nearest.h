// Suggests the known word closest to a mistyped one.
#pragma once

#include <string>
#include <vector>

namespace udsim {

/// Returns ` (did you mean "disc-time"?)`, or an empty text if no known word is close. A known word is close
/// if `word` differs only in case, is its end after a hyphen or dot or its beginning (three letters or more),
/// or has at most one typing error per three letters.
std::string suggestion(const std::string& word, const std::vector<std::string>& known);

/// `"A", "B", "C"`.
std::string quotedList(const std::vector<std::string>& words);

} // namespace udsim
