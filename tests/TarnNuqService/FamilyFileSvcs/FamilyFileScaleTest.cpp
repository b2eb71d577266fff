// Families and specifications of thousands of parameters: the time grows with their number, not with its square.
// WaitLimit is a hundred times what the work takes, and a small part of what it would take the other way.
#include "TarnNuqService/FamilyFileSvcs/FamilyFileFixture.h"
#include "support/WaitFor.h"

#include <QElapsedTimer>

namespace {

constexpr int Count = 20000;

class FamilyFileScaleTest : public testsupport::FamilyFileFixture
{
protected:
    static std::string Id(int number) { return "{0A1B2C3D-0000-4000-8000-" + std::to_string(1000000 + number) + '}'; }

    static std::shared_ptr<tarnnuq::ISpecification> InReverse()
    {
        std::vector<testsupport::GivenValue> values;
        for (int number = 0; number < Count; ++number) {
            const std::string id = Id(number);
            values.push_back({std::to_wstring(1000000 - number), std::wstring(id.begin(), id.end()),
                std::to_wstring(number) + L".5"});
        }
        return Specification(values);
    }

    void ExpectQuick(const std::function<bool()>& operation)
    {
        QElapsedTimer timer;
        timer.start();
        EXPECT_TRUE(operation());
        EXPECT_LT(std::chrono::milliseconds(timer.elapsed()), testsupport::WaitLimit);
    }
};

} // namespace

TEST_F(FamilyFileScaleTest, ChecksThousandsOfParameters)
{
    for (int number = 0; number < Count; ++number) {
        family.Add(Id(number), 5);
    }
    const auto service = Open();
    const auto specification = InReverse();
    ExpectQuick([&] { return service->TryUpdateGeometry(specification); });
    for (int number = 0; number < Count; number += 997) {
        EXPECT_EQ(family.asked[static_cast<std::size_t>(number)].number, number + 0.5);
    }
}

TEST_F(FamilyFileScaleTest, WritesThousandsOfParameters)
{
    for (int number = 0; number < Count; ++number) {
        family.AddOutput(Id(number), 5).number = 2.5 * number;
    }
    const auto service = Open();
    const auto specification = InReverse();
    bool changed = false;
    ExpectQuick([&] { return service->UpdateDrivenParameters(specification, changed); });
    EXPECT_EQ(specification->Parameters[std::to_wstring(1000000 - 3)]->Value, L"7.5");
    EXPECT_EQ(specification->Parameters[std::to_wstring(1000000 - 14000)]->Value, L"35000");
}
