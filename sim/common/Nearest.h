// The known word that somebody who wrote another one may have meant.
#pragma once

#include <string>
#include <vector>

namespace udsim {

/// ` (did you mean "disc-time"?)`, or nothing when no known word is near. Near is: the same but for capitals,
/// a part of it between hyphens and dots, its beginning (three letters or more), or one slip for every three
/// letters.
std::string suggestion(const std::string& word, const std::vector<std::string>& known);

/// `"A", "B", "C"`.
std::string quotedList(const std::vector<std::string>& words);

} // namespace udsim
