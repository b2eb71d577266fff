#include "Errors/AddressText.h"

#include <gtest/gtest.h>

namespace componentlibrary {
namespace {

std::string Shown(const char* address)
{
    return AddressText(QUrl::fromEncoded(address)).toStdString();
}

TEST(AddressText, HidesUserInfoAndSecretParameters)
{
    EXPECT_EQ(Shown("https://me:pass@h:8/a?x=1&token=abc&ACCESS_TOKEN=d%26e&y=2#part"),
        "https://h:8/a?x=1&token=***&ACCESS_TOKEN=***&y=2");
}

TEST(AddressText, LeavesTheRestAsItWentOverTheWire)
{
    EXPECT_EQ(Shown("http://h/a%2Fb?keyword=%E6%B3%B5%20%26&page=1"), "http://h/a%2Fb?keyword=%E6%B3%B5%20%26&page=1");
    EXPECT_EQ(Shown(""), "");
}

} // namespace
} // namespace componentlibrary
