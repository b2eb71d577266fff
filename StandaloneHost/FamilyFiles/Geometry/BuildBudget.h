#pragma once

#include "FamilyFiles/BuildProgress.h"

#include <Message_ProgressIndicator.hxx>
#include <chrono>
#include <cstddef>

namespace familyfiles {

/// Ends long operations of the kernel: when the caller asks for it, or when the time is used up.
///
/// Operations of the kernel look at it again and again while they run; between them Check does.
class BuildBudget : public Message_ProgressIndicator
{
public:
    /// @param progress may be null, must outlive the budget
    /// @param operations how many times BeginOperation will be called
    BuildBudget(std::chrono::milliseconds time, BuildProgress* progress, std::size_t operations);

    /// Tells that another part of the work begins. Throws as Check does.
    void BeginOperation();

    /// Throws GeometryFailure when the budget is used up: geometry.cancelled, geometry.time.
    void Check();

    Standard_Boolean UserBreak() override;

    DEFINE_STANDARD_RTTI_INLINE(BuildBudget, Message_ProgressIndicator)

protected:
    void Show(const Message_ProgressScope& scope, Standard_Boolean isForced) override;

private:
    bool IsCancelled();
    bool IsLate() const;

    std::chrono::steady_clock::time_point m_end;
    BuildProgress* m_progress;
    std::size_t m_operations;
    std::size_t m_begun = 0;
    double m_done = 0;
    bool m_isCancelled = false;
};

} // namespace familyfiles
