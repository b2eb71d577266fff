#include "nuq-cloud/support/TestServer.h"

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <iterator>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

namespace cloudtest {
namespace {

using Json = nlohmann::json;

constexpr int kDisciplines = 3;
constexpr int kKinds = 3;
constexpr int kEnds = 3;

/// A random catalogue over few letters, so that short keywords hit some texts and miss others.
class RandomCatalogue
{
public:
    explicit RandomCatalogue(unsigned seed) : m_random(seed)
    {
        for (int i = 0; i < kDisciplines; ++i) {
            AddBranch(i);
        }
    }

    const LibraryContent& Content() const { return m_content; }

    std::string Text(int longest)
    {
        std::string text;
        for (int left = Number(longest); left >= 0; --left) {
            text += kLetters[static_cast<std::size_t>(Number(5))];
        }
        return text;
    }

private:
    static constexpr const char* kLetters[] = {"a", "b", "%", "_", "泵", " "};

    int Number(int largest) { return static_cast<int>(m_random() % static_cast<unsigned>(largest + 1)); }

    std::size_t AddCategory(const std::string& code, std::size_t parent)
    {
        const int id = static_cast<int>(m_content.categories.size()) + 1;
        const bool top = parent == SIZE_MAX;
        const CategoryRow parentRow = top ? CategoryRow() : m_content.categories[parent];
        const int major = top ? (id - 1) % 3 : parentRow.major;
        m_content.categories.push_back({id, code, parentRow.id, parentRow.code, major, Count(), 0});
        return m_content.categories.size() - 1;
    }

    int Count() const { return static_cast<int>(m_content.components.size()); }

    void Close(std::size_t category)
    {
        m_content.categories[category].count = Count() - m_content.categories[category].first;
    }

    void AddBranch(int ordinal)
    {
        const std::string code = "D" + std::to_string(ordinal);
        const std::size_t discipline = AddCategory(code, SIZE_MAX);
        for (int i = Number(kKinds); i > 0; --i) {
            AddKind(code + '.' + std::to_string(i), discipline);
        }
        Close(discipline);
    }

    void AddKind(const std::string& code, std::size_t parent)
    {
        const std::size_t kind = AddCategory(code, parent);
        for (int i = Number(kEnds); i > 0; --i) {
            const std::string endCode = code + '.' + std::to_string(i);
            const std::size_t end = AddCategory(endCode, kind);
            for (int left = Number(6); left > 0; --left) {
                m_content.components.push_back({std::to_string(5000 + Count()), endCode, Text(12)});
            }
            Close(end);
        }
        Close(kind);
    }

    std::mt19937 m_random;
    LibraryContent m_content;
};

std::vector<std::string> Words(const std::string& keyword)
{
    std::istringstream stream(keyword);
    return {std::istream_iterator<std::string>(stream), std::istream_iterator<std::string>()};
}

bool Matches(const ComponentRow& component, const std::string& keyword)
{
    const auto words = Words(keyword);
    return std::all_of(words.begin(), words.end(),
        [&](const std::string& word) { return component.search.find(word) != std::string::npos; });
}

/// "D1.2" is below "D1" and itself, but not below "D".
bool IsBelow(const std::string& code, const std::string& ancestor)
{
    return code == ancestor || code.rfind(ancestor + '.', 0) == 0;
}

std::vector<std::string> Reference(
    const LibraryContent& content, const std::string& categoryCode, const std::string& keyword)
{
    std::vector<std::string> ids;
    for (const ComponentRow& component : content.components) {
        if (IsBelow(component.categoryCode, categoryCode) && Matches(component, keyword)) {
            ids.push_back(component.id);
        }
    }
    return ids;
}

std::string Encoded(const std::string& text)
{
    std::string out;
    for (const char c : text) {
        char piece[4];
        std::snprintf(piece, sizeof(piece), "%%%02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
        out += piece;
    }
    return out;
}

/// All ids of a category's pages, each page of three.
std::vector<std::string> AllPages(const TestServer& server, const std::string& query, int total)
{
    std::vector<std::string> ids;
    for (int page = 1; page <= total / 3 + 1; ++page) {
        const Json data =
            Json::parse(server.ApiText("/v1/components?page_size=3&page=" + std::to_string(page) + query)).at("data");
        EXPECT_EQ(data.at("totalCount"), total);
        for (const Json& component : data.at("list")) {
            ids.push_back(component.at("id").get<std::string>());
        }
    }
    return ids;
}

class Counts : public ::testing::TestWithParam<unsigned>
{
};

TEST_P(Counts, EqualWhatAllPagesHoldForEveryKeywordAndMajor)
{
    RandomCatalogue catalogue(GetParam());
    const TestServer server(nuqcloud::ServerSettings(), catalogue.Content());
    for (int round = 0; round < 12; ++round) {
        const std::string keyword = round == 0 ? "" : catalogue.Text(2);
        const std::string major = round % 4 == 3 ? std::to_string(round % 3) : "";
        const Json list =
            Json::parse(server.ApiText("/v3/categories?major=" + major + "&keyword=" + Encoded(keyword))).at("data");
        std::size_t listed = 0;
        for (const CategoryRow& category : catalogue.Content().categories) {
            if (!major.empty() && std::to_string(category.major) != major) {
                continue;
            }
            const auto expected = Reference(catalogue.Content(), category.code, keyword);
            ASSERT_LT(listed, list.size());
            EXPECT_EQ(list.at(listed).at("code"), category.code);
            EXPECT_EQ(list.at(listed).at("count"), expected.size()) << category.code << " for \"" << keyword << '"';
            ++listed;
            if (round % 3 == 0) {
                EXPECT_EQ(AllPages(server, "&category_code=" + category.code + "&keyword=" + Encoded(keyword),
                              static_cast<int>(expected.size())),
                    expected);
            }
        }
        EXPECT_EQ(list.size(), listed);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, Counts, ::testing::Range(1U, 9U));

} // namespace
} // namespace cloudtest
