#include "Records/ICategory.h"
#include "ResponseHandlers/LeafMarking_p.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace {

using tarnnuq::ICategory;
using tarnnuq::RecordList;

constexpr std::size_t CodeCount = 2000;
constexpr std::size_t SlotCount = 4096; // of a hash table for so many

/// Codes that all begin at one slot of a table with the standard library's own hash.
std::vector<std::wstring> CollidingCodes()
{
    std::vector<std::wstring> codes;
    for (int number = 0; codes.size() < CodeCount; ++number) {
        std::wstring code = std::to_wstring(number);
        if (std::hash<std::wstring_view>()(code) % SlotCount == 1) {
            codes.push_back(std::move(code));
        }
    }
    return codes;
}

/// Category i has category i + 1 for a parent, whatever the order of their codes.
RecordList<ICategory> Chain(const std::vector<std::wstring>& codes)
{
    RecordList<ICategory> categories;
    for (std::size_t i = 0; i + 1 < codes.size(); ++i) {
        categories.push_back(std::make_shared<ICategory>());
        categories.back()->Code = codes[i];
        categories.back()->ParentCode = codes[i + 1];
    }
    return categories;
}

TEST(ChosenCodes, LeavesAreRightWhereAllCodesShareTheirHash)
{
    const RecordList<ICategory> categories = Chain(CollidingCodes());

    tarnnuq::MarkLeaves(categories);

    EXPECT_TRUE(categories.front()->IsLeaf);
    for (std::size_t i = 1; i < categories.size(); ++i) {
        EXPECT_FALSE(categories[i]->IsLeaf) << i;
    }
}

} // namespace
