#include "Products/EvaluationOrder.h"

#include "Reading/SourceError.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

namespace samplelibrary {

namespace {

bool IsNameCharacter(char character)
{
    return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_';
}

/// All words of an expression; those that are no targets do not matter.
std::set<std::string> Words(const std::string& expression)
{
    std::set<std::string> words;
    std::string word;
    for (const char character : expression + ' ') {
        if (IsNameCharacter(character)) {
            word += character;
        } else if (!word.empty()) {
            words.insert(word);
            word.clear();
        }
    }
    return words;
}

/// Puts out the assignments one after another, first what one needs, then the one.
class Orderer
{
public:
    Orderer(const std::vector<Assignment>& assignments, const std::string& where)
        : m_assignments(assignments), m_where(where), m_states(assignments.size(), State::Waiting)
    {
        for (std::size_t index = 0; index < assignments.size(); ++index) {
            m_byTarget[assignments[index].Target] = index;
        }
    }

    std::vector<Assignment> Ordered()
    {
        for (std::size_t index = 0; index < m_assignments.size(); ++index) {
            Put(index);
        }
        return m_ordered;
    }

private:
    enum class State
    {
        Waiting,
        Entered,
        Done
    };

    void Put(std::size_t index)
    {
        if (m_states[index] == State::Done) {
            return;
        }
        if (m_states[index] == State::Entered) {
            throw SourceError(m_where, "the value of " + m_assignments[index].Target + " needs itself");
        }
        m_states[index] = State::Entered;
        for (const std::string& word : Words(m_assignments[index].Expression)) {
            const auto needed = m_byTarget.find(word);
            if (needed != m_byTarget.end() && needed->second != index) {
                Put(needed->second);
            }
        }
        m_states[index] = State::Done;
        m_ordered.push_back(m_assignments[index]);
    }

    const std::vector<Assignment>& m_assignments;
    const std::string& m_where;
    std::vector<State> m_states;
    std::map<std::string, std::size_t> m_byTarget;
    std::vector<Assignment> m_ordered;
};

} // namespace

std::vector<Assignment> InEvaluationOrder(const std::vector<Assignment>& assignments, const std::string& where)
{
    return Orderer(assignments, where).Ordered();
}

} // namespace samplelibrary
