// The texts of values held to references of their own, for generated values and texts.
#include "TarnNuqService/FamilyFileSvcs/FamilyFileFixture.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <regex>

namespace {

constexpr int Rounds = 20000;

class StoredValueRulesTest : public testsupport::FamilyFileFixture
{
protected:
    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }

    double AnyFinite()
    {
        double number = 0;
        do {
            const std::uint64_t bits = random();
            std::memcpy(&number, &bits, sizeof number);
        } while (!std::isfinite(number));
        return number;
    }

    /// Every bit pattern, sizes as they occur in families, few decimals, and ties between two sixth decimals.
    double AnyNumber()
    {
        switch (Below(4)) {
        case 0:
            return AnyFinite();
        case 1:
            return std::uniform_real_distribution<double>(-100000, 100000)(random);
        case 2:
            return (Below(2000001) - 1000000) / std::pow(10, Below(9));
        default:
            return (Below(20001) - 10000) / 128.0;
        }
    }

    std::string AnyText(const char* alphabet, int most)
    {
        std::string text;
        for (int count = Below(most + 1); count > 0; --count) {
            text += alphabet[Below(static_cast<int>(std::strlen(alphabet)))];
        }
        return text;
    }

    std::mt19937_64 random{20220125};
};

std::wstring Wide(const std::string& text)
{
    return std::wstring(text.begin(), text.end());
}

/// Every decimal digit of the number, then the sixth decimal rounded half up by hand.
std::string SixDecimals(double number)
{
    char buffer[2048];
    const int length = std::snprintf(buffer, sizeof buffer, "%.1100f", std::fabs(number));
    std::string digits(buffer, static_cast<std::size_t>(length));
    const bool up = digits[digits.find('.') + 7] >= '5';
    digits.resize(digits.find('.') + 7);
    for (std::size_t at = digits.size(); up && at-- > 0;) {
        if (digits[at] == '.') {
            continue;
        }
        if (digits[at] != '9') {
            ++digits[at];
            return digits;
        }
        digits[at] = '0';
        if (at == 0) {
            digits.insert(0, 1, '1');
        }
    }
    return digits;
}

std::wstring NumberReference(double number)
{
    std::string text = SixDecimals(number);
    while (text.back() == '0') {
        text.pop_back();
    }
    if (text.back() == '.') {
        text.pop_back();
    }
    return Wide((number < 0 ? "-" : "") + text);
}

const std::regex Blanks("^[ \t]+|[ \t]+$");
const std::regex WholeNumber("[+-]?[0-9]+");
const std::regex AnyNumberText("[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)(e[+-]?[0-9]+)?");

std::string Trimmed(const std::string& text)
{
    return std::regex_replace(text, Blanks, "");
}

int IntegerReference(const std::string& text)
{
    if (!std::regex_match(Trimmed(text), WholeNumber)) {
        return 0;
    }
    const long long number = std::strtoll(Trimmed(text).c_str(), nullptr, 10);
    return number < -2147483648LL || number > 2147483647LL ? 0 : static_cast<int>(number);
}

double DoubleReference(const std::string& text)
{
    return std::regex_match(Trimmed(text), AnyNumberText) ? std::strtod(Trimmed(text).c_str(), nullptr) : 0.0;
}

bool YesNoReference(const std::string& text)
{
    std::string lower = Trimmed(text);
    for (char& letter : lower) {
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    }
    return lower == "true" || IntegerReference(lower) != 0;
}

} // namespace

TEST_F(StoredValueRulesTest, NumbersAreWrittenAsTheReferenceHasThem)
{
    testsupport::RecordingParameter& output = family.AddOutput("p", 5);
    const auto service = Open();
    const auto specification = Specification({{L"P", L"p", L""}});
    for (int round = 0; round < Rounds; ++round) {
        output.number = AnyNumber();
        bool changed = false;
        service->UpdateDrivenParameters(specification, changed);
        ASSERT_EQ(specification->Parameters[L"P"]->Value, NumberReference(output.number)) << output.number;
        family.calls.calls.clear();
    }
}

TEST_F(StoredValueRulesTest, WrittenNumbersHaveNoZerosBehindAndReadBackToTheSixthDecimal)
{
    testsupport::RecordingParameter& output = family.AddOutput("p", 5);
    family.Add("p", 5);
    const auto service = Open();
    const auto specification = Specification({{L"P", L"p", L""}});
    const std::wstring point = L".";
    for (int round = 0; round < Rounds / 4; ++round) {
        output.number = std::uniform_real_distribution<double>(-100000, 100000)(random);
        bool changed = false;
        service->UpdateDrivenParameters(specification, changed);
        const std::wstring text = specification->Parameters[L"P"]->Value;
        ASSERT_TRUE(text.find(L'.') == std::wstring::npos || (text.back() != L'0' && text.back() != L'.'));
        service->TryUpdateGeometry(specification);
        ASSERT_NEAR(family.Asked("p").number, output.number, 0.50001e-6);
        family.calls.calls.clear();
    }
}

TEST_F(StoredValueRulesTest, IntegersAreReadAsTheReferenceReadsThem)
{
    family.Add("p", 4);
    const auto service = Open();
    for (int round = 0; round < Rounds; ++round) {
        const std::string text = Below(2) == 0 ? AnyText("0123456789 +-", 12) : AnyText(" \t+-0123456789.eExa", 6);
        service->TryUpdateGeometry(Specification({{L"P", L"p", Wide(text)}}));
        ASSERT_EQ(family.Asked("p").integer, IntegerReference(text)) << '"' << text << '"';
        family.calls.calls.clear();
    }
}

TEST_F(StoredValueRulesTest, NumbersAreReadAsTheReferenceReadsThem)
{
    family.Add("p", 5);
    const auto service = Open();
    for (int round = 0; round < Rounds; ++round) {
        char exact[64];
        std::snprintf(exact, sizeof exact, "%.17g", AnyFinite());
        const std::string text = Below(3) == 0 ? exact : AnyText(" \t+-0123456789.exa", 8);
        service->TryUpdateGeometry(Specification({{L"P", L"p", Wide(text)}}));
        ASSERT_EQ(family.Asked("p").number, DoubleReference(text)) << '"' << text << '"';
        family.calls.calls.clear();
    }
}

TEST_F(StoredValueRulesTest, YesAndNoAreReadAsTheReferenceReadsThem)
{
    family.Add("p", 3);
    const auto service = Open();
    const std::vector<std::string> words{"true", "TRUE", "True", "false", "1", "0", "-1", "yes", "2147483648"};
    for (int round = 0; round < Rounds; ++round) {
        const std::string word = Below(2) == 0 ? words[static_cast<std::size_t>(Below(9))] : AnyText("+-0123", 3);
        const std::string text = AnyText(" \t", 2) + word + AnyText(" \te0", 2);
        service->TryUpdateGeometry(Specification({{L"P", L"p", Wide(text)}}));
        ASSERT_EQ(family.Asked("p").yesNo, YesNoReference(text)) << '"' << text << '"';
        family.calls.calls.clear();
    }
}
