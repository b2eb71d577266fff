#include "FamilyFiles/Geometry/KernelBorder.h"

namespace familyfiles {

namespace {

Reason Named(const std::string& code, const std::string& step, const std::string& english, const std::string& chinese)
{
    if (step.empty()) {
        return {code, {}, english, chinese};
    }
    return {code, step, "Step " + step + ": " + english, "步骤 " + step + "：" + chinese};
}

} // namespace

Reason ReasonOf(const GeometryFailure& failure, const std::string& step)
{
    return Named(failure.Code(), step, failure.what(), failure.Chinese());
}

Reason ReasonOf(const Standard_Failure& failure, const std::string& step)
{
    const char* text = failure.GetMessageString();
    const std::string detail = text != nullptr && *text != '\0' ? std::string(" (") + text + ')' : std::string();
    return Named("geometry.failed", step, "The shape cannot be made" + detail, "无法生成形状" + detail);
}

Reason ReasonOf(const std::exception& failure, const std::string& step)
{
    const std::string detail = std::string(" (") + failure.what() + ')';
    return Named("geometry.failed", step, "The shape cannot be made" + detail, "无法生成形状" + detail);
}

} // namespace familyfiles
