#include "Logging/LogMask.h"

#include "support/NamedCase.h"
#include "support/PrintQt.h"
#include <gtest/gtest.h>
#include <thread>
#include <vector>

using standalone::LogMask;

namespace {

QString Masked(const QString& text)
{
    return LogMask().Apply(text);
}

struct Row : testsupport::NamedCase
{
    const char* text;
    const char* masked;
};

class LogMaskRow : public testing::TestWithParam<Row>
{
};

TEST_P(LogMaskRow, IsMaskedAsExpected)
{
    EXPECT_EQ(Masked(QString::fromUtf8(GetParam().text)), QString::fromUtf8(GetParam().masked));
}

INSTANTIATE_TEST_SUITE_P(Rules, LogMaskRow,
    testing::Values(Row{"HeaderRecord", "Authorization header: s3cret", "Authorization header: ***"},
        Row{"HeaderRecordWithScheme", "Authorization header: bearer s3cret", "Authorization header: ***"},
        Row{"HeaderRecordWithBlanksAndLines", "Authorization header: a b\nc\r\nd 密", "Authorization header: ***"},
        Row{"HeaderRecordInOtherCase", "x AUTHORIZATION HEADER: s3cret", "x AUTHORIZATION HEADER: ***"},
        Row{"HeaderRecordWithoutValue", "Authorization header: ", "Authorization header: "},
        Row{"HeaderRecordWithMaskInFront", "Authorization header: ***s3cret", "Authorization header: ***"},
        Row{"RawHeader", "GET /\r\nAuthorization: Basic QWxhZA==\r\nHost: h", "GET /\r\nAuthorization: ***\r\nHost: h"},
        Row{"RawHeaderWithEquals", "authorization=abc def", "authorization=***"},
        Row{"JsonMember", R"({"Authorization": "bearer x", "a": 1})", R"({"Authorization": "***", "a": 1})"},
        Row{"EscapedJsonMember", R"({\"Authorization\":\"x\",\"a\":1})", R"({\"Authorization\":\"***\",\"a\":1})"},
        Row{"BearerWord", "refused: Bearer abc.def-ghi, try again", "refused: Bearer ***, try again"},
        Row{"BearerAsPartOfAWord", "forbearer abc", "forbearer abc"},
        Row{"TokenInQuery", "http://h/a?token=abc%20d&x=1", "http://h/a?token=***&x=1"},
        Row{"TokenAtTheEnd", "http://h/a?x=1&TOKEN=abc", "http://h/a?x=1&TOKEN=***"},
        Row{"TokenBeforeFragment", "http://h/a?token=abc#f", "http://h/a?token=***#f"},
        Row{"AccessToken", "access_token=abc next", "access_token=*** next"},
        Row{"TokenMember", R"({"refresh_token" : "abc","b":2})", R"({"refresh_token" : "***","b":2})"},
        Row{"EmptyToken", "http://h/a?token=&x=1", "http://h/a?token=&x=1"},
        Row{"TokenAsAWord", "a token of esteem", "a token of esteem"},
        Row{"UserInfo", "get http://user:p%40ss@h:80/a", "get http://***@h:80/a"},
        Row{"UserInfoWithAtSigns", "http://us@er:p@ss@h/a@b", "http://***@h/a@b"},
        Row{"UserInfoWithQuote", "http://o'neil:p@h", "http://***@h"},
        Row{"UserInfoOfTwoUrls", "http://a:b@h and ftp://c:d@i", "http://***@h and ftp://***@i"},
        Row{"AtSignBehindTheHost", "http://h/a@b?c@d", "http://h/a@b?c@d"},
        Row{"AddressBehindAnUrl", "http://h me@there", "http://h me@there"},
        Row{"Ordinary", "request:http://h/v3/categories?major=&keyword=水泵",
            "request:http://h/v3/categories?major=&keyword=水泵"}),
    testsupport::RowName());

TEST(LogMask, HidesKnownSecretsEverywhere)
{
    LogMask mask;
    mask.AddSecret(QStringLiteral("demo-token"));
    EXPECT_EQ(mask.Apply(QStringLiteral("you sent demo-token, demo-token!")), QStringLiteral("you sent ***, ***!"));
    EXPECT_EQ(mask.Apply(QStringLiteral("you sent Demo-token")), QStringLiteral("you sent Demo-token"));
}

TEST(LogMask, HidesTheLongerOfTwoSecretsWhole)
{
    for (const bool longerFirst : {true, false}) {
        LogMask mask;
        mask.AddSecret(longerFirst ? QStringLiteral("demo-token-qa") : QStringLiteral("demo-token"));
        mask.AddSecret(longerFirst ? QStringLiteral("demo-token") : QStringLiteral("demo-token-qa"));
        EXPECT_EQ(mask.Apply(QStringLiteral("<demo-token-qa> <demo-token>")), QStringLiteral("<***> <***>"));
    }
}

TEST(LogMask, HidesASecretInsideUrlsAndJson)
{
    LogMask mask;
    mask.AddSecret(QStringLiteral("ab/cd+\"ef"));
    EXPECT_EQ(mask.Apply(QStringLiteral("http://h?x=ab%2Fcd%2B%22ef.")), QStringLiteral("http://h?x=***."));
    EXPECT_EQ(mask.Apply(QStringLiteral("{\"a\":\"ab\\/cd+\\\"ef\"}")), QStringLiteral("{\"a\":\"***\"}"));
}

TEST(LogMask, LeavesTooShortSecretsAlone)
{
    LogMask mask;
    mask.AddSecret(QStringLiteral("error"));
    mask.AddSecret(QString());
    EXPECT_EQ(mask.Apply(QStringLiteral("error 5")), QStringLiteral("error 5"));
    mask.AddSecret(QStringLiteral("errors"));
    EXPECT_EQ(mask.Apply(QStringLiteral("errors 5")), QStringLiteral("*** 5"));
}

TEST(LogMask, TakesAwayWhatMayBeTheBeginningOfASecret)
{
    LogMask mask;
    EXPECT_EQ(mask.ApplyToBeginning(QStringLiteral("body")), QStringLiteral("body"));
    EXPECT_EQ(mask.ApplyToBeginning(QStringLiteral("get http://user:passw")), QStringLiteral("get http://"));
    mask.AddSecret(QStringLiteral("0123456789"));
    EXPECT_EQ(mask.ApplyToBeginning(QStringLiteral("body 012345678")), QStringLiteral("body "));
    EXPECT_EQ(mask.ApplyToBeginning(QStringLiteral("body 0123456789 and more text")), QStringLiteral("body *** and "));
}

TEST(LogMask, MayBeUsedFromSeveralThreads)
{
    LogMask mask;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int number = 0; number < 4; ++number) {
        threads.emplace_back([&mask, number] {
            for (int round = 0; round < 200; ++round) {
                const QString secret = QStringLiteral("secret-%1-%2").arg(number).arg(round, 4, 10, QLatin1Char('0'));
                mask.AddSecret(secret);
                EXPECT_EQ(mask.Apply(secret), QStringLiteral("***"));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

} // namespace
