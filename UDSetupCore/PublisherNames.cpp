#include "PublisherNames.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr int shortestBeginning = 3;
constexpr int charactersPerError = 3;
constexpr int longestName = 256; ///< longer ones, which no setting file holds, are close to nothing
constexpr int mostNames = 3;
constexpr int unrelated = longestName + 1;

/// The smallest number of typing errors that turn one text into the other.
int typingErrors(const QString& left, const QString& right)
{
    std::vector<int> before;
    std::vector<int> last(static_cast<size_t>(right.size()) + 1);
    std::vector<int> now(last.size());
    for (size_t j = 0; j < last.size(); ++j) {
        last[j] = static_cast<int>(j);
    }
    for (int i = 1; i <= left.size(); ++i) {
        now[0] = i;
        for (int j = 1; j <= right.size(); ++j) {
            const auto at = static_cast<size_t>(j);
            const int change = left[i - 1] == right[j - 1] ? 0 : 1;
            now[at] = std::min({last[at] + 1, now[at - 1] + 1, last[at - 1] + change});
            if (i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1]) {
                now[at] = std::min(now[at], before[at - 2] + 1);
            }
        }
        before = last;
        std::swap(last, now);
    }
    return last.back();
}

int distance(const QString& name, const QString& known)
{
    const QString left = name.toLower();
    const QString right = known.toLower();
    if (left == right) {
        return 0;
    }
    const int errors = typingErrors(left, right);
    if (errors <= left.size() / charactersPerError) {
        return errors;
    }
    return left.size() >= shortestBeginning && right.startsWith(left) ? longestName : unrelated;
}

} // namespace

bool hasName(CPublisherMgr& publisherMgr, const CString& id, const char* szName)
{
    PUBLISHERINFO info;
    return publisherMgr.GetPublisherInfo(id.c_str(), &info, TRUE) &&
           info.strPublisherName.Compare(szName) == 0;
}

QStringList closeNames(const QString& name, const QStringList& known)
{
    std::vector<std::pair<int, int>> close; // the distance and the position
    for (int i = 0; i < known.size(); ++i) {
        const bool comparable = name.size() <= longestName && known[i].size() <= longestName;
        const int apart = comparable ? distance(name, known[i]) : unrelated;
        if (apart < unrelated) {
            close.emplace_back(apart, i);
        }
    }
    std::sort(close.begin(), close.end());
    QStringList names;
    for (const auto& [apart, position] : close) {
        if (names.size() < mostNames && !names.contains(known[position])) {
            names << known[position];
        }
    }
    return names;
}
