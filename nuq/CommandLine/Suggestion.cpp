#include "CommandLine/Suggestion.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace nuq {
namespace {

constexpr int kLongestWord = 64;

/// Insertions, deletions, replacements and swaps of neighbours between two words.
int Distance(const QString& one, const QString& other)
{
    const int width = other.size() + 1;
    std::vector<int> beforeLast(static_cast<std::size_t>(width));
    std::vector<int> last(beforeLast.size());
    std::vector<int> current(beforeLast.size());
    std::iota(last.begin(), last.end(), 0);
    for (int i = 1; i <= one.size(); ++i) {
        current[0] = i;
        for (int j = 1; j < width; ++j) {
            const auto at = static_cast<std::size_t>(j);
            const int change = one[i - 1] == other[j - 1] ? 0 : 1;
            current[at] = std::min({last[at] + 1, current[at - 1] + 1, last[at - 1] + change});
            const bool isSwap = i > 1 && j > 1 && one[i - 1] == other[j - 2] && one[i - 2] == other[j - 1];
            if (isSwap)
                current[at] = std::min(current[at], beforeLast[at - 2] + 1);
        }
        std::swap(beforeLast, last);
        std::swap(last, current);
    }
    return last.back();
}

} // namespace

QString Suggestion(const QString& word, const QStringList& known)
{
    if (word.size() > kLongestWord)
        return QString();
    QString best;
    int bestDistance = std::max(1, word.size() / 3) + 1;
    for (const QString& candidate : known) {
        const bool isBeginning = word.size() >= 3 && candidate.startsWith(word, Qt::CaseInsensitive);
        const int edits = Distance(word.toLower(), candidate);
        const int distance = isBeginning ? std::min(edits, 1) : edits;
        if (distance < bestDistance) {
            best = candidate;
            bestDistance = distance;
        }
    }
    return best;
}

} // namespace nuq
