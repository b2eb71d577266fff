// The tree of any library beside the same tree worked out in the plainest way.
#include "TarnNuqService/PropertySvcs/PropertyServiceFixture.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <set>

using tarnnuq::ICategory;
using testsupport::Describe;
using testsupport::FakeCategoryInfo;
using testsupport::FakeDisciplineInfo;

namespace {

using Texts = std::vector<std::wstring>;
using Records = std::vector<std::shared_ptr<ICategory>>;
using Leaves = std::map<std::wstring, const tarn::ITarnCategoryInfo*>;

/// Libraries whose codes repeat, whose keys have nothing to do with the order, and in which some objects are missing.
class RandomLibrary
{
public:
    RandomLibrary(std::mt19937& random, testsupport::HostLibrary& library, testsupport::RecordingHost& host, int codes)
        : m_random(random), m_library(library), m_codes(codes)
    {
        host.categoryInfo.disciplines.clear();
        for (int left = Below(5); left > 0; --left) {
            FakeDisciplineInfo& discipline = library.AddDiscipline(Code());
            discipline.id = L"discipline " + std::to_wstring(left);
            FillLevel(discipline.categories, 6, 3);
        }
        // The order within a level has to be the only one there is.
        Number(host.categoryInfo.disciplines);
    }

private:
    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }
    std::wstring Code() { return L"c" + std::to_wstring(Below(m_codes)); }

    void FillLevel(std::map<std::wstring, const tarn::ITarnCategoryInfo*>& level, int most, int below)
    {
        for (int left = Below(most); left > 0; --left) {
            FakeCategoryInfo& category = m_library.MakeCategory(Code());
            category.name = L"name " + std::to_wstring(Below(1000));
            if (below > 0 && Below(3) > 0) {
                FillLevel(category.subCategories, most, 0);
            }
            level[L"key " + std::to_wstring(Below(m_codes))] = Below(8) == 0 ? nullptr : &category;
        }
        Number(level);
    }

    template <typename Info>
    void Number(std::map<std::wstring, const Info*>& level)
    {
        std::vector<int> indexes(level.size());
        std::iota(indexes.begin(), indexes.end(), -2);
        std::shuffle(indexes.begin(), indexes.end(), m_random);
        auto index = indexes.begin();
        for (auto& entry : level) {
            SetSortIndex(entry.second, *index++);
        }
    }

    static void SetSortIndex(const tarn::ITarnDisciplineInfo* info, int index)
    {
        if (info) {
            const_cast<FakeDisciplineInfo*>(static_cast<const FakeDisciplineInfo*>(info))->sortIndex = index;
        }
    }

    static void SetSortIndex(const tarn::ITarnCategoryInfo* info, int index)
    {
        if (info) {
            const_cast<FakeCategoryInfo*>(static_cast<const FakeCategoryInfo*>(info))->sortIndex = index;
        }
    }

    std::mt19937& m_random;
    testsupport::HostLibrary& m_library;
    int m_codes;
};

/// The tree as one would write it down by hand: the least index of those left is next.
class Reference
{
public:
    explicit Reference(const testsupport::RecordingHost& host)
    {
        ICategory root;
        root.IdText = root.Code = L"0";
        root.Name = L"全部";
        Add(root);
        ForEach(host.categoryInfo.disciplines, [this, &root](const auto&, const auto& info) {
            const ICategory discipline = Below(root, info, {root.Name, info.GetName()}, false);
            std::map<std::wstring, const tarn::ITarnCategoryInfo*> categories;
            info.GetCategories(categories);
            AddCategories(categories, discipline);
        });
    }

    Records records;
    Leaves leaves;

private:
    template <typename Info, typename Use>
    static void ForEach(std::map<std::wstring, const Info*> left, const Use& use)
    {
        while (true) {
            auto least = left.end();
            for (auto entry = left.begin(); entry != left.end(); ++entry) {
                const bool isLess = entry->second && (least == left.end() ||
                                                         entry->second->GetSortIndex() < least->second->GetSortIndex());
                least = isLess ? entry : least;
            }
            if (least == left.end()) {
                return;
            }
            use(least->first, *least->second);
            left.erase(least);
        }
    }

    void AddCategories(const std::map<std::wstring, const tarn::ITarnCategoryInfo*>& level, const ICategory& discipline)
    {
        ForEach(level, [this, &discipline](const auto&, const auto& info) {
            const bool isLeaf = info.GetSubCategories().empty();
            if (isLeaf) {
                leaves[info.GetCode()] = &info;
            }
            const ICategory category = Below(discipline, info, {discipline.Name, info.GetName()}, isLeaf);
            ForEach(info.GetSubCategories(), [this, &discipline, &category](const auto& key, const auto& endInfo) {
                Below(category, endInfo, {discipline.Name, category.Name, endInfo.GetName()}, true);
                leaves[key] = &endInfo;
            });
        });
    }

    template <typename Info>
    ICategory Below(const ICategory& parent, const Info& info, const Texts& namePath, bool isLeaf)
    {
        ICategory category;
        category.IdText = info.GetId();
        category.Name = info.GetName();
        category.Code = info.GetCode();
        category.ParentIdText = parent.IdText;
        category.ParentCode = parent.Code;
        category.NamePath = namePath;
        category.SetIsLeaf(isLeaf);
        return Add(category);
    }

    ICategory Add(const ICategory& category)
    {
        records.push_back(std::make_shared<ICategory>(category));
        return category;
    }
};

std::shared_ptr<ICategory> FirstOf(const Records& records, const std::wstring& code)
{
    for (const auto& record : records) {
        if (record->Code == code) {
            return record;
        }
    }
    return nullptr;
}

Records PlainChain(const Records& records, const std::wstring& code)
{
    const auto found = code.empty() ? nullptr : FirstOf(records, code);
    if (!found) {
        return {};
    }
    const auto parent = FirstOf(records, found->ParentCode);
    Records chain;
    if (parent && !parent->Code.empty() && parent->Code != L"0") {
        chain = PlainChain(records, found->ParentCode);
    }
    chain.push_back(found);
    return chain;
}

class CategoryTreeRulesTest : public testsupport::PropertyServiceFixture, public ::testing::WithParamInterface<int>
{
protected:
    void ExpectTheReference()
    {
        const Reference reference(host);
        Service().Init();
        ASSERT_EQ(Describe(Service().GetCategories()), Describe(reference.records));
        for (int code = 0; code <= GetParam(); ++code) {
            ExpectTheSameLookUps(reference, L"c" + std::to_wstring(code));
            ExpectTheSameLookUps(reference, L"key " + std::to_wstring(code));
        }
        ExpectTheSameLookUps(reference, L"0");
        ExpectTheSameLookUps(reference, L"");
    }

    void ExpectTheSameLookUps(const Reference& reference, const std::wstring& code)
    {
        ASSERT_EQ(Describe(Service().GetCategoryByCode(code)), Describe(FirstOf(reference.records, code)));
        ASSERT_EQ(Describe(Service().GetFullCategories(code)), Describe(PlainChain(reference.records, code)));
        // Leaves that were found before stay; those of this tree are as they stand now.
        const auto leaf = reference.leaves.find(code);
        if (leaf != reference.leaves.end()) {
            ASSERT_EQ(Service().GetEndTarnCategoryByCode(code), leaf->second);
        }
    }

    std::mt19937 random{20220125};
};

} // namespace

TEST_P(CategoryTreeRulesTest, AnyLibraryGivesTheTreeOfTheReference)
{
    for (int round = 0; round < 400; ++round) {
        const RandomLibrary filled(random, library, host, GetParam());
        ExpectTheReference();
        ASSERT_FALSE(HasFatalFailure()) << "round " << round;
    }
}

TEST_P(CategoryTreeRulesTest, AnyLibraryGivesTheLeavesOfTheReference)
{
    for (int round = 0; round < 200; ++round) {
        const RandomLibrary filled(random, library, host, GetParam());
        tarnnuq::PropertyServiceAccess access;
        ASSERT_EQ(access.LeavesOfHost(), Reference(host).leaves) << "round " << round;
    }
}

INSTANTIATE_TEST_SUITE_P(DistinctCodes, CategoryTreeRulesTest, ::testing::Values(4, 12, 1000));

namespace {

using CategoryTreeTiesTest = testsupport::PropertyServiceFixture;

} // namespace

TEST_F(CategoryTreeTiesTest, EqualIndexesLoseNoRecordAndStandTogether)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> few(0, 4);
    std::map<std::wstring, int> indexes;
    for (int number = 0; number < 500; ++number) {
        const std::wstring code = std::to_wstring(number + 1);
        indexes[code] = few(random);
        library.AddDiscipline(code, indexes[code]);
    }
    Texts codes = Codes();
    codes.erase(codes.begin());
    EXPECT_TRUE(std::is_sorted(codes.begin(), codes.end(),
        [&indexes](const std::wstring& a, const std::wstring& b) { return indexes[a] < indexes[b]; }));
    EXPECT_EQ(std::set<std::wstring>(codes.begin(), codes.end()).size(), indexes.size());
    EXPECT_EQ(codes.size(), indexes.size());
}
