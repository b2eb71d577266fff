#include "Api/QueryParameters.h"

#include "Api/ApiError.h"

#include <functional>
#include <gtest/gtest.h>

namespace nuqcloud {
namespace {

std::string ErrorOf(const std::function<void()>& work)
{
    try {
        work();
    } catch (const ApiError& error) {
        EXPECT_EQ(error.Status(), 400);
        EXPECT_EQ(error.Code(), "INVALID_PARAMETER");
        return error.what();
    }
    return "no error";
}

std::string PageError(const std::string& query)
{
    return ErrorOf([&] { QueryParameters(query).Page(); });
}

TEST(QueryParameters, DecodesNamesAndValues)
{
    const QueryParameters query("a%62=x%20y+z&&empty=&bare&e=1=2");
    EXPECT_EQ(query.Text("ab", 10), "x y z");
    EXPECT_EQ(query.Text("empty", 10), "");
    EXPECT_EQ(query.Text("bare", 10), "");
    EXPECT_EQ(query.Text("e", 10), "1=2");
    EXPECT_EQ(query.Text("absent", 10), "");
}

TEST(QueryParameters, CountsCharactersNotBytesForTheLimit)
{
    const QueryParameters query("k=%E6%B3%B5%E6%B3%B5");
    EXPECT_EQ(query.Text("k", 2), "泵泵");
    EXPECT_EQ(ErrorOf([&] { query.Text("k", 1); }), "Parameter \"k\" is \"泵泵\"; expected at most 1 characters.");
}

TEST(QueryParameters, CutsLongValuesInMessagesAtACharacter)
{
    const std::string value(200, 'a');
    EXPECT_EQ(ErrorOf([&] { QueryParameters("k=" + value).Text("k", 1); }),
        "Parameter \"k\" is \"" + std::string(80, 'a') + "...\"; expected at most 1 characters.");
    std::string pumps;
    std::string encoded;
    for (int i = 0; i < 40; ++i) {
        pumps += i < 26 ? "泵" : "";
        encoded += "%E6%B3%B5";
    }
    EXPECT_EQ(ErrorOf([&] { QueryParameters("k=" + encoded).Text("k", 1); }),
        "Parameter \"k\" is \"" + pumps + "...\"; expected at most 1 characters.");
}

TEST(QueryParameters, RefusesAParameterGivenTwice)
{
    EXPECT_EQ(PageError("page=1&page=2"), "Parameter \"page\" is \"2\"; expected it once, not 2 times.");
}

TEST(QueryParameters, IgnoresWhatNobodyReads)
{
    EXPECT_EQ(PageError("unknown=1&unknown=2"), "no error");
}

TEST(QueryParameters, RefusesBadEncodings)
{
    for (const char* query : {"a=%", "a=%FF", "a=%00", "%C3=1"}) {
        EXPECT_EQ(ErrorOf([&] { QueryParameters parsed(query); }).find("The query holds a part"), 0U) << query;
    }
}

TEST(QueryParameters, HasPageAndSizeWithDefaults)
{
    const PageRequest page = QueryParameters("").Page();
    EXPECT_EQ(page.page, 1);
    EXPECT_EQ(page.size, 20);
    EXPECT_EQ(page.Offset(), 0);
    EXPECT_EQ(QueryParameters("page=&page_size=").Page().size, 20);
    EXPECT_EQ(QueryParameters("page=2147483647&page_size=200").Page().Offset(), 2147483646LL * 200);
}

TEST(QueryParameters, RefusesPagesOutsideTheLimits)
{
    const std::string page = "; expected a whole number from 1 to 2147483647.";
    const std::string size = "; expected a whole number from 1 to 200.";
    for (const std::string value :
        {"0", "-1", "2147483648", "99999999999999999999", "1.5", "abc", "1x", "%201", "0x1", "1e3"}) {
        EXPECT_NE(PageError("page=" + value).find(page), std::string::npos) << value;
    }
    for (const std::string value : {"0", "-1", "201", "18446744073709551617"}) {
        EXPECT_EQ(PageError("page_size=" + value), "Parameter \"page_size\" is \"" + value + '"' + size);
    }
    EXPECT_EQ(PageError("page_size=1"), "no error");
    EXPECT_EQ(PageError("page_size=200"), "no error");
}

TEST(QueryParameters, RefusesChoicesThatAreNone)
{
    const QueryParameters query("major=3");
    EXPECT_EQ(ErrorOf([&] {
        query.Choice("major", {"0", "1", "2"});
    }),
        "Parameter \"major\" is \"3\"; expected one of 0, 1, 2, or nothing.");
}

} // namespace
} // namespace nuqcloud
