#include "Nearest.h"

#include <algorithm>

#include <strings.h>

namespace udsim {

namespace {

constexpr size_t SHORTEST_BEGINNING = 3;
constexpr size_t LETTERS_A_SLIP = 3;
constexpr size_t LONGEST_WORD = 64; ///< longer words get no suggestion

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Counts the letters that are missing, extra, wrong, or swapped with their neighbour.
size_t slips(const std::string& left, const std::string& right)
{
    std::vector<size_t> before;
    std::vector<size_t> last(right.size() + 1);
    std::vector<size_t> now(right.size() + 1);
    for (size_t j = 0; j <= right.size(); ++j) {
        last[j] = j;
    }
    for (size_t i = 1; i <= left.size(); ++i) {
        now[0] = i;
        for (size_t j = 1; j <= right.size(); ++j) {
            const bool same = lower(left[i - 1]) == lower(right[j - 1]);
            now[j] = std::min({last[j] + 1, now[j - 1] + 1, last[j - 1] + (same ? 0 : 1)});
            if (i > 1 && j > 1 && lower(left[i - 1]) == lower(right[j - 2]) &&
                lower(left[i - 2]) == lower(right[j - 1])) {
                now[j] = std::min(now[j], before[j - 2] + 1);
            }
        }
        before = last;
        std::swap(last, now);
    }
    return last.back();
}

size_t commonBeginning(const std::string& left, const std::string& right)
{
    const auto differ = std::mismatch(left.begin(), left.end(), right.begin(), right.end(),
                                      [](char a, char b) { return lower(a) == lower(b); });
    return static_cast<size_t>(differ.first - left.begin());
}

/// Returns the distance between the words, 0 if they are equal but for case; `none` if they are unrelated.
size_t distance(const std::string& word, const std::string& known, size_t none)
{
    if (::strcasecmp(word.c_str(), known.c_str()) == 0) {
        return 0;
    }
    if (word.size() >= SHORTEST_BEGINNING && (known.ends_with("-" + word) || known.ends_with("." + word))) {
        return 1;
    }
    if (word.size() >= SHORTEST_BEGINNING && known.starts_with(word + " ")) {
        return 1;
    }
    const size_t count = slips(word, known);
    if (count <= word.size() / LETTERS_A_SLIP) {
        return 1 + count;
    }
    return word.size() >= SHORTEST_BEGINNING && known.starts_with(word) ? none - 1 : none;
}

} // namespace

std::string suggestion(const std::string& word, const std::vector<std::string>& known)
{
    size_t nearest = LONGEST_WORD;
    size_t longest = 0;
    const std::string* best = nullptr;
    for (const std::string& one : known) {
        const size_t apart = word.size() > LONGEST_WORD ? LONGEST_WORD : distance(word, one, LONGEST_WORD);
        const size_t common = commonBeginning(word, one);
        if (apart < nearest || (apart == nearest && apart < LONGEST_WORD && common > longest)) {
            nearest = apart;
            longest = common;
            best = &one;
        }
    }
    return best == nullptr ? "" : " (did you mean \"" + *best + "\"?)";
}

std::string quotedList(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "\"" : ", \"") + word + "\"";
    }
    return text;
}

} // namespace udsim
